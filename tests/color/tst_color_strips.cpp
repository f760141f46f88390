#include "ColorInputs.h"
#include "Rows.h"

#include "color/ZelColorHandle.h"
#include "color/ZelColorStrip.h"

#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorSliderEdit>

#include <cmath>
#include <limits>

namespace {

constexpr ZelColorChannel::Range kelvins{2500, 9500};

} // namespace

class TestColorStrips : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void channelsAreDescribed_data();
    void channelsAreDescribed();
    void channelsAreReadAndWritten_data();
    void channelsAreReadAndWritten();
    void stripsShowTheirChannel_data();
    void stripsShowTheirChannel();
    void stripsTakeTheDisplaysGamma();
    void stripsTakeAnyColor();
    void colorsAreConverted();
    void handleStaysOnTheStrip();
    void handleLiesOnTheStrip();
};

void TestColorStrips::init()
{
    TestCase::init();
    policy()->setEnableGammaCorrection(false);
}

using Range = ZelColorChannel::Range;
using Description = std::tuple<int, Text, Range, Range, int, Text>;

void TestColorStrips::channelsAreDescribed_data()
{
    addRows<Description>({
        {"red", {0, "Red", {0, 255}, {0, 255}, 0, ""}},
        {"blue", {2, "Blue", {0, 255}, {0, 255}, 0, ""}},
        {"hue", {3, "Hue", {0, 359}, {0, 359}, 0, " \u00b0"}},
        {"saturation", {4, "Saturation", {0, 100}, {0, 100}, 0, " %"}},
        {"black", {9, "Black", {0, 100}, {0, 100}, 0, " %"}},
        {"brightness", {10, "Brightness", {0, 100}, {0, 100}, 0, " %"}},
        {"L", {11, "L", {0, 100}, {0, 100}, 2, ""}},
        {"b", {13, "b", {-128, 128}, {-128, 128}, 2, ""}},
        {"temperature", {14, "Temperature", {2500, 9500}, {0, 100000}, 0, " \u00b0"}},
        {"above all", {15, "", {0, 255}, {0, 255}, 2, ""}},
        {"below all", {-1, "", {0, 255}, {0, 255}, 2, ""}},
    });
}

void TestColorStrips::channelsAreDescribed()
{
    const auto [mode, label, slider, field, decimals, suffix] = currentRow<Description>();
    ZelColorSliderEdit edit(orange(), Mode(mode), ZelColorChannel::label(Mode(mode)), false);
    QCOMPARE(sliderOf(&edit)->accessibleName(), label);
    QCOMPARE(sliderOf(&edit)->minimum(), slider.minimum);
    QCOMPARE(sliderOf(&edit)->maximum(), slider.maximum);
    QCOMPARE(fieldOf(&edit)->minimum(), double(field.minimum));
    QCOMPARE(fieldOf(&edit)->maximum(), double(field.maximum));
    QCOMPARE(fieldOf(&edit)->decimals(), decimals);
    QCOMPARE(fieldOf(&edit)->suffix(), suffix);
}

using Channel = std::tuple<Mode, float, float, Space>;

void TestColorStrips::channelsAreReadAndWritten_data()
{
    addRows<Channel>({
        {"red", {Mode(0), 204, 17, Space::RGB}},
        {"green", {Mode(1), 102, 17, Space::RGB}},
        {"blue", {Mode(2), 51, 17, Space::RGB}},
        {"hue", {Mode(3), 20, 333, Space::HSV}},
        {"saturation", {Mode(4), 75, 10, Space::HSV}},
        {"value", {Mode(5), 80, 10, Space::HSV}},
        {"cyan", {Mode(6), 0, 40, Space::CMYK}},
        {"magenta", {Mode(7), 50, 40, Space::CMYK}},
        {"yellow", {Mode(8), 75, 40, Space::CMYK}},
        {"black", {Mode(9), 20, 40, Space::CMYK}},
        {"brightness", {Mode(10), 80, 40, Space::RGB}},
        {"L", {Mode(11), 54.64f, 33.25f, Space::Lab}},
        {"a", {Mode(12), 36.906f, -99.5f, Space::Lab}},
        {"b", {Mode(13), 46.124f, 12.75f, Space::Lab}},
    });
}

void TestColorStrips::channelsAreReadAndWritten()
{
    const auto [mode, value, other, space] = currentRow<Channel>();
    constexpr float limit = 0.02f;
    const float read = ZelColorChannel::channelValue(mode, orange());
    QVERIFY2(std::abs(read - value) < limit, qPrintable(QString::number(double(read))));

    const ZelColor written = ZelColorChannel::setChannelValue(mode, orange(), other);
    QCOMPARE(written.space(), space);
    QVERIFY(std::abs(ZelColorChannel::channelValue(mode, written) - other) < limit);
    const bool isGrey = mode == Mode::Brightness;
    const ZelColor back = ZelColorChannel::setChannelValue(mode, written, value);
    QCOMPARE(areNear(back, orange(), 0.001f), !isGrey);
    if (isGrey)
        QVERIFY(areNear(back, ZelColor(Space::RGB, 0.8f, 0.8f, 0.8f), 1e-6f));
}

void TestColorStrips::stripsShowTheirChannel_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("place");
    QTest::addColumn<QColor>("color");

    const auto add = [](int mode, int width, int place, const QColor &color) {
        QTest::addRow("%d at %d", mode, place) << mode << width << place << color;
    };
    for (const int i : {0, 1, 77, 128, 254, 255}) {
        add(0, 256, i, QColor(i, 102, 51));
        add(1, 256, i, QColor(204, i, 51));
        add(2, 256, i, QColor(204, 102, i));
        add(10, 256, i, QColor(i, i, i));
    }
    for (const int i : {0, 59, 60, 200, 359})
        add(3, 360, i, QColor::fromHsvF(float(i) / 360.0f, 0.75f, 0.8f));
    for (const int i : {0, 1, 50, 99}) {
        const float part = float(i) / 100.0f;
        add(4, 100, i, QColor::fromHsvF(20.0f / 360.0f, part, 0.8f));
        add(5, 100, i, QColor::fromHsvF(20.0f / 360.0f, 0.75f, part));
        add(6, 100, i, QColor::fromCmykF(part, 0.5f, 0.75f, 0.2f));
        add(7, 100, i, QColor::fromCmykF(0, part, 0.75f, 0.2f));
        add(8, 100, i, QColor::fromCmykF(0, 0.5f, part, 0.2f));
        add(9, 100, i, QColor::fromCmykF(0, 0.5f, 0.75f, part));
    }
    for (const int i : {0, 57, 99})
        add(11, 100, i, toQColor(ZelColor(Space::Lab, float(i), 36.906f, 46.124f)));
    for (const int i : {0, 128, 254, 255}) {
        const float shown = float(std::min(i, 254)) - 128;
        add(12, 256, i, toQColor(ZelColor(Space::Lab, 54.64f, shown, 46.124f)));
        add(13, 256, i, toQColor(ZelColor(Space::Lab, 54.64f, 36.906f, shown)));
    }
    for (const int i : {0, 50, 99}) {
        const ZelColor body =
            ZelColorChannel::setChannelValue(Mode::Temperature, ZelColor(), 2500.0f + 70.0f * i);
        add(14, 100, i, toQColor(body));
    }
    add(15, 1, 0, QColor(204, 102, 51));
}

void TestColorStrips::stripsShowTheirChannel()
{
    QFETCH(int, mode);
    QFETCH(int, width);
    QFETCH(int, place);
    QFETCH(QColor, color);
    const QImage strip = ZelColorStrip::image(Mode(mode), orange(), 1.0f, kelvins);
    QCOMPARE(strip.size(), QSize(width, 1));
    QCOMPARE(strip.format(), QImage::Format_RGB888);
    // Truncated here, rounded there.
    const QRgb pixel = strip.pixel(place, 0);
    QVERIFY2(areNear(pixel, color.rgb(), 1), qPrintable(QColor(pixel).name() + color.name()));
}

void TestColorStrips::stripsTakeTheDisplaysGamma()
{
    const float gamma = policy()->getInvGamma();
    const QImage strip = ZelColorStrip::image(Mode::Red, orange(), gamma, kelvins);
    for (int i = 0; i < strip.width(); ++i) {
        const int red = int(255 * std::pow(i / 255.0, 1 / 2.2));
        QVERIFY(areNear(strip.pixel(i, 0), qRgb(red, 168, 122), 1));
    }
    // Extreme displays as well get what the power gives.
    for (const float exponent : {1e-38f, 0.1f, 0.4545f, 1.8f, 30.0f, 1e30f}) {
        const QImage greys = ZelColorStrip::image(Mode::Brightness, orange(), exponent, kelvins);
        for (int i = 0; i < greys.width(); ++i) {
            const float grey = std::min(float(i) * 0.003921569f, 1.0f);
            QCOMPARE(qRed(greys.pixel(i, 0)), int(std::pow(grey, exponent) * 255.0f));
        }
    }
    const QImage hues = ZelColorStrip::hues(1.0f);
    QCOMPARE(hues.size(), QSize(2, 360));
    for (const int y : {0, 100, 359}) {
        const QRgb pure = QColor::fromHsv(359 - y, 255, 255).rgb();
        QVERIFY(areNear(hues.pixel(0, y), pure, 2));
        QCOMPARE(hues.pixel(1, y), hues.pixel(0, y));
    }

    ZelColorSlider slider(Mode::Red);
    slider.updatePixmap(orange(), false);
    QCOMPARE(qGreen(slider.strip().toImage().pixel(0, 0)), 102);
    policy()->setEnableGammaCorrection(true);
    QVERIFY(std::abs(qGreen(slider.strip().toImage().pixel(0, 0)) - 168) <= 1);
    slider.updatePixmap(orange(), true);
    QCOMPARE(qGreen(slider.strip().toImage().pixel(0, 0)), 102);
}

void TestColorStrips::stripsTakeAnyColor()
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float bad : {std::nanf(""), infinity, -infinity, 1e38f, -1e38f}) {
        for (int space = 0; space <= 5; ++space) {
            const ZelColor color(Space(space), bad, bad, bad, bad);
            for (int mode = 0; mode <= 15; ++mode) {
                QVERIFY(!ZelColorStrip::image(Mode(mode), color, 0.45f, kelvins).isNull());
                ZelColorSliderEdit edit(color, Mode(mode), QString(), true);
                QVERIFY(std::isfinite(edit.value()));
                edit.setValue(bad);
                QVERIFY(sliderOf(&edit)->value() <= sliderOf(&edit)->maximum());
            }
        }
    }
}

void TestColorStrips::colorsAreConverted()
{
    QCOMPARE(toQColor(orange()).rgba(), qRgba(204, 102, 51, 255));
    const ZelColor wild(Space::RGB, 1.5f, -0.5f, std::nanf(""));
    QCOMPARE(toQColor(wild).rgba(), qRgba(255, 0, 0, 255));
    const ZelColor back = fromQColor(QColor(204, 102, 51, 7), QStringLiteral("Ocker \u00e4"));
    QVERIFY(areNear(back, orange(), 1e-4f));
    QCOMPARE(back.space(), Space::RGB);
    QCOMPARE(back.name(), std::string("Ocker \xc3\xa4"));

    QCOMPARE(toDisplayQColor(orange()), toQColor(orange()));
    policy()->setEnableGammaCorrection(true);
    QVERIFY(areNear(toDisplayQColor(orange()).rgb(), qRgb(230, 168, 123), 1));
}

void TestColorStrips::handleStaysOnTheStrip()
{
    for (const int span : {100, 255, 256, 359, 7000}) {
        for (const int length : {40, 100, 221, 1000}) {
            constexpr int diameter = 11;
            int before = 0;
            for (int step = 0; step <= span; ++step) {
                const int x = ZelColorHandle::offset(step, span, length, diameter);
                // A pixel is what the rounding of its parts may be off by.
                QVERIFY(x >= before - 1 && x >= 0 && x + diameter <= length + 1);
                before = x;
            }
        }
    }
    QCOMPARE(ZelColorHandle::diameter(16), 11);
    QCOMPARE(ZelColorHandle::across(16), 3);
    QCOMPARE(ZelColorHandle::offset(0, 100, 200, 11), 1);
    QCOMPARE(ZelColorHandle::offset(75, 100, 200, 11), 141);
    QCOMPARE(ZelColorHandle::offset(100, 100, 200, 11), 187);
    QCOMPARE(ZelColorHandle::offset(0, 0, 200, 11), 1);
}

void TestColorStrips::handleLiesOnTheStrip()
{
    ZelColorSlider slider(Mode::Red);
    slider.resize(256, 16);
    slider.setCursorColor(Qt::green);
    slider.updatePixmap(ZelColor(Space::RGB, 0, 0, 0), false);
    slider.setValue(128);
    QImage image(slider.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    slider.render(&image, {}, {}, QWidget::DrawChildren);
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QVERIFY(areNear(image.pixel(20, 8), qRgb(20, 0, 0), 2));
    QVERIFY(areNear(image.pixel(240, 8), qRgb(240, 0, 0), 2));
    const int x = ZelColorHandle::offset(128, 255, 256, 11);
    QVERIFY2(areNear(image.pixel(x, 8), qRgb(0, 255, 0), 60), "the ring");
    QVERIFY2(areNear(image.pixel(x + 5, 8), qRgb(x + 5, 0, 0), 2), "the strip inside the ring");
}

ZEL_TEST_MAIN(TestColorStrips)
#include "tst_color_strips.moc"
