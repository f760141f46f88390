#include "TestCase.h"
#include "UserInput.h"

#include "color/ZelColorHandle.h"
#include "color/ZelColorStrip.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorLineEdit>
#include <ZelWidgets/ZelColorSliderEdit>
#include <ZelWidgets/ZelHueSlider>

#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using Mode = ZelColorChannel::Mode;
using Space = ZelColor::Space;

namespace {

constexpr ZelColorChannel::Range kelvins{2500, 9500};

const ZelColor &orange()
{
    static const ZelColor color(Space::RGB, 0.8f, 0.4f, 0.2f);
    return color;
}

ZelGammaPolicy *policy()
{
    return ZelGammaPolicy::get();
}

bool areNear(const ZelColor &one, const ZelColor &other, float limit)
{
    const std::array<float, 3> a = one.toRGB();
    const std::array<float, 3> b = other.toRGB();
    return std::abs(a[0] - b[0]) < limit && std::abs(a[1] - b[1]) < limit &&
           std::abs(a[2] - b[2]) < limit;
}

bool areNear(QRgb one, QRgb other, int limit)
{
    return std::abs(qRed(one) - qRed(other)) <= limit &&
           std::abs(qGreen(one) - qGreen(other)) <= limit &&
           std::abs(qBlue(one) - qBlue(other)) <= limit;
}

ZelColorSliderEdit *row(QWidget *input, int index)
{
    return input->findChildren<ZelColorSliderEdit *>().at(index);
}

QSlider *sliderOf(QWidget *row)
{
    return row->findChild<ZelColorSlider *>();
}

QDoubleSpinBox *fieldOf(QWidget *row)
{
    return row->findChild<ZelColorLineEdit *>();
}

void enter(QDoubleSpinBox *field, const QString &text)
{
    field->setFocus();
    field->selectAll();
    UserInput::type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/// The last colour that a colorChanged() told.
ZelColor lastOf(const QSignalSpy &spy)
{
    return spy.isEmpty() ? ZelColor() : spy.last().at(0).value<ZelColor>();
}

} // namespace

class TestColorInputs : public TestCase
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
    void mouseGoesWhereItIs();
    void hueSliderIsUpright();
    void keysGoByParts();
    void handleLiesOnTheStrip();
    void fieldAndSliderGoInStep();
    void fieldsOfADialogKeepReturn();
    void inputsSpeakTheirSpace_data();
    void inputsSpeakTheirSpace();
    void whatComesBackMovesNothing();
    void hueSurvivesGreys();
    void hiddenInputsWait();
    void displayValuesComeOutLinear();
    void kelvinOfBlackIsNone();
    void dyingFieldsTellNothing();
};

void TestColorInputs::init()
{
    TestCase::init();
    policy()->setEnableGammaCorrection(false);
}

void TestColorInputs::channelsAreDescribed_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QList<int>>("slider");
    QTest::addColumn<QList<int>>("field");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("suffix");

    const QString degree = QStringLiteral(" \u00b0");
    const QString percent = QStringLiteral(" %");
    const auto add = [](int mode, const char *label, QList<int> slider, QList<int> field,
                        int decimals, const QString &suffix) {
        QTest::addRow("%d", mode) << mode << QString::fromLatin1(label) << slider << field
                                  << decimals << suffix;
    };
    add(0, "Red", {0, 255}, {0, 255}, 0, {});
    add(2, "Blue", {0, 255}, {0, 255}, 0, {});
    add(3, "Hue", {0, 359}, {0, 359}, 0, degree);
    add(4, "Saturation", {0, 100}, {0, 100}, 0, percent);
    add(9, "Black", {0, 100}, {0, 100}, 0, percent);
    add(10, "Brightness", {0, 100}, {0, 100}, 0, percent);
    add(11, "L", {0, 100}, {0, 100}, 2, {});
    add(13, "b", {-128, 128}, {-128, 128}, 2, {});
    add(14, "Temperature", {2500, 9500}, {0, 100000}, 0, degree);
    add(15, "", {0, 255}, {0, 255}, 2, {});
    add(-1, "", {0, 255}, {0, 255}, 2, {});
}

void TestColorInputs::channelsAreDescribed()
{
    QFETCH(int, mode);
    QFETCH(QString, label);
    QFETCH(QList<int>, slider);
    QFETCH(QList<int>, field);
    QFETCH(int, decimals);
    QFETCH(QString, suffix);
    ZelColorSliderEdit edit(orange(), Mode(mode), ZelColorChannel::label(Mode(mode)), false);
    QCOMPARE(sliderOf(&edit)->accessibleName(), label);
    QCOMPARE((QList<int>{sliderOf(&edit)->minimum(), sliderOf(&edit)->maximum()}), slider);
    QCOMPARE((QList<int>{int(fieldOf(&edit)->minimum()), int(fieldOf(&edit)->maximum())}), field);
    QCOMPARE(fieldOf(&edit)->decimals(), decimals);
    QCOMPARE(fieldOf(&edit)->suffix(), suffix);
}

void TestColorInputs::channelsAreReadAndWritten_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("other");
    QTest::addColumn<int>("space");

    const auto add = [](int mode, float value, float other, Space space) {
        QTest::addRow("%d", mode) << mode << value << other << int(space);
    };
    add(0, 204, 17, Space::RGB);
    add(1, 102, 17, Space::RGB);
    add(2, 51, 17, Space::RGB);
    add(3, 20, 333, Space::HSV);
    add(4, 75, 10, Space::HSV);
    add(5, 80, 10, Space::HSV);
    add(6, 0, 40, Space::CMYK);
    add(7, 50, 40, Space::CMYK);
    add(8, 75, 40, Space::CMYK);
    add(9, 20, 40, Space::CMYK);
    add(10, 80, 40, Space::RGB);
    add(11, 54.64f, 33.25f, Space::Lab);
    add(12, 36.906f, -99.5f, Space::Lab);
    add(13, 46.124f, 12.75f, Space::Lab);
}

void TestColorInputs::channelsAreReadAndWritten()
{
    QFETCH(int, mode);
    QFETCH(float, value);
    QFETCH(float, other);
    QFETCH(int, space);
    constexpr float limit = 0.02f;
    const float read = ZelColorChannel::channelValue(Mode(mode), orange());
    QVERIFY2(std::abs(read - value) < limit, qPrintable(QString::number(double(read))));

    const ZelColor written = ZelColorChannel::setChannelValue(Mode(mode), orange(), other);
    QCOMPARE(int(written.space()), space);
    QVERIFY(std::abs(ZelColorChannel::channelValue(Mode(mode), written) - other) < limit);
    const bool isGrey = Mode(mode) == Mode::Brightness;
    const ZelColor back = ZelColorChannel::setChannelValue(Mode(mode), written, value);
    QCOMPARE(areNear(back, orange(), 0.001f), !isGrey);
    if (isGrey)
        QVERIFY(areNear(back, ZelColor(Space::RGB, 0.8f, 0.8f, 0.8f), 1e-6f));
}

void TestColorInputs::stripsShowTheirChannel_data()
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

void TestColorInputs::stripsShowTheirChannel()
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

void TestColorInputs::stripsTakeTheDisplaysGamma()
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

void TestColorInputs::stripsTakeAnyColor()
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

void TestColorInputs::colorsAreConverted()
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

void TestColorInputs::handleStaysOnTheStrip()
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

void TestColorInputs::mouseGoesWhereItIs()
{
    ZelColorSlider slider(Mode::LabA);
    slider.resize(200, 16);
    slider.show();
    QSignalSpy spy(&slider, &QSlider::valueChanged);
    UserInput::press(&slider, {150, 8}, {}, Qt::RightButton);
    UserInput::move(&slider, {150, 8});
    QVERIFY(spy.isEmpty());
    UserInput::press(&slider, {150, 8});
    QCOMPARE(slider.value(), 65);
    UserInput::move(&slider, {5, 8});
    QCOMPARE(slider.value(), -122);
    UserInput::move(&slider, {-50, 80});
    QCOMPARE(slider.value(), -128);
    UserInput::move(&slider, {500, 8});
    QCOMPARE(slider.value(), 128);
    UserInput::release(&slider, {500, 8});
    UserInput::move(&slider, {100, 8});
    QCOMPARE(slider.value(), 128);
    QCOMPARE(spy.size(), 4);
}

void TestColorInputs::hueSliderIsUpright()
{
    ZelHueSlider slider;
    QCOMPARE(slider.sizeHint(), QSize(20, 200));
    QCOMPARE(slider.minimumWidth(), int(16 / slider.devicePixelRatioF()));
    slider.resize(slider.width(), 180);
    slider.show();
    UserInput::press(&slider, {4, 45});
    QCOMPARE(slider.value(), 270);
    UserInput::move(&slider, {4, 179});
    QCOMPARE(slider.value(), 2);
    UserInput::move(&slider, {4, 400});
    UserInput::move(&slider, {-40, 90});
    QCOMPARE(slider.value(), 2);
    UserInput::move(&slider, {4, 0});
    QCOMPARE(slider.value(), 359);
    UserInput::release(&slider, {4, 0});

    slider.setValue(120);
    const int y = ZelColorHandle::offset(359 - 120, 359, 180, 11) + 5;
    const QImage image = slider.grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, y), QColor(0, 255, 0));
    QVERIFY(areNear(image.pixel(8, 30), QColor::fromHsv(298, 255, 255).rgb(), 12));

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&slider);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Hue"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("120 \u00b0"));
}

void TestColorInputs::keysGoByParts()
{
    QWidget mirrored;
    mirrored.setLayoutDirection(Qt::RightToLeft);
    ZelColorSlider slider(Mode::Saturation, &mirrored);
    ZelHueSlider hue;
    QTest::keyClick(&slider, Qt::Key_Right);
    QCOMPARE(slider.value(), 1);
    QTest::keyClick(&slider, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(slider.value(), 11);
    QTest::keyClick(&slider, Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(slider.value(), 1);
    QTest::keyClick(&slider, Qt::Key_End);
    QCOMPARE(slider.value(), 100);
    QTest::keyClick(&hue, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(hue.value(), 36);
    QVERIFY(!UserInput::wheel(&hue, 1));
    QCOMPARE(hue.value(), 36);
    QVERIFY(UserInput::wheel(&hue, 1, Qt::ControlModifier));
    QVERIFY(hue.value() > 36);
}

void TestColorInputs::handleLiesOnTheStrip()
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

void TestColorInputs::fieldAndSliderGoInStep()
{
    ZelColorSliderEdit edit(ZelColor(Space::Lab, 50.25f, 10.5f, -20.75f), Mode::LabB,
                            QStringLiteral("b"), false);
    edit.show();
    QSignalSpy spy(&edit, &ZelColorSliderEdit::valueChanged);
    QCOMPARE(edit.value(), -20.75f);
    QCOMPARE(sliderOf(&edit)->value(), -21);
    enter(fieldOf(&edit), QStringLiteral("12.5"));
    QCOMPARE(edit.value(), 12.5f);
    QCOMPARE(sliderOf(&edit)->value(), 13);
    enter(fieldOf(&edit), QStringLiteral("12.75"));
    sliderOf(&edit)->setValue(-3);
    QCOMPARE(edit.value(), -3.0f);
    edit.setValue(-44.5f);
    QCOMPARE(edit.value(), -45.0f);
    edit.setColor(ZelColor(Space::Lab, 50, 0, 7.25f), false);
    QCOMPARE(edit.value(), 7.25f);
    QCOMPARE(spy, (QList<QVariantList>{{13}, {13}, {-3}, {-45}}));

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(sliderOf(&edit));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("b"));
    QCOMPARE(accessible->text(QAccessible::Value), fieldOf(&edit)->text());
}

void TestColorInputs::fieldsOfADialogKeepReturn()
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    auto *input = new ZelRGBColorInput(orange(), false);
    auto *button = new QPushButton(QStringLiteral("OK"));
    layout.addWidget(input);
    layout.addWidget(button);
    button->setDefault(true);
    dialog.show();
    QSignalSpy clicked(button, &QPushButton::clicked);
    QSignalSpy changed(input, &ZelColorInput::colorChanged);
    enter(fieldOf(row(input, 0)), QStringLiteral("51"));
    QVERIFY(clicked.isEmpty());
    QCOMPARE(changed.size(), 1);
    QVERIFY(areNear(lastOf(changed), ZelColor(Space::RGB, 0.2f, 0.4f, 0.2f), 1e-6f));
}

void TestColorInputs::inputsSpeakTheirSpace_data()
{
    QTest::addColumn<std::function<ZelColorInput *()>>("make");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("position");
    QTest::addColumn<ZelColor>("expected");

    const auto add = [](const char *name, std::function<ZelColorInput *()> make, int index,
                        int position, const ZelColor &expected) {
        QTest::newRow(name) << make << index << position << expected;
    };
    add(
        "RGB", [] { return new ZelRGBColorInput(orange(), false); }, 2, 255,
        ZelColor(Space::RGB, 0.8f, 0.4f, 1));
    add(
        "CMYK", [] { return new ZelCMYKColorInput(orange(), false); }, 3, 0,
        ZelColor(Space::CMYK, 0, 0.5f, 0.75f, 0));
    add(
        "HSV", [] { return new ZelHSVColorInput(orange(), false); }, 0, 200,
        ZelColor(Space::HSV, 200, 0.75f, 0.8f));
    add(
        "grey", [] { return new ZelGrayColorInput(orange(), false); }, 0, 30,
        ZelColor(Space::RGB, 0.3f, 0.3f, 0.3f));
    add(
        "L*ab", [] { return new ZelCIELABColorInput(orange(), false); }, 1, -5,
        ZelColor(Space::Lab, 54.64f, -5, 46.12f));
    add(
        "kelvin", [] { return new ZelTemperatureColorInput(orange(), false); }, 0, 6500,
        ZelColorChannel::setChannelValue(Mode::Temperature, ZelColor(), 6500));
}

void TestColorInputs::inputsSpeakTheirSpace()
{
    QFETCH(std::function<ZelColorInput *()>, make);
    QFETCH(int, index);
    QFETCH(int, position);
    QFETCH(ZelColor, expected);
    const std::unique_ptr<ZelColorInput> input(make());
    input->show();
    QSignalSpy spy(input.get(), &ZelColorInput::colorChanged);
    sliderOf(row(input.get(), index))->setValue(position);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(lastOf(spy).space(), expected.space());
    for (std::size_t i = 0; i < 4; ++i)
        QVERIFY(std::abs(lastOf(spy).components()[i] - expected.components()[i]) < 0.01f);
    QVERIFY(lastOf(spy) == input->color());
}

void TestColorInputs::whatComesBackMovesNothing()
{
    ZelCMYKColorInput input(orange(), false);
    input.show();
    connect(&input, &ZelColorInput::colorChanged, &input, [&](const ZelColor &color) {
        const auto [red, green, blue] = color.toRGB();
        input.setColor(ZelColor(Space::RGB, red, green, blue));
    });
    // Black with ink in it: read back from RGB, the inks would be 0.
    sliderOf(row(&input, 3))->setValue(100);
    QCOMPARE(row(&input, 2)->value(), 75.0f);
    QCOMPARE(input.color().space(), Space::CMYK);
    QSignalSpy spy(&input, &ZelColorInput::colorChanged);
    input.setColor(ZelColor(Space::RGB, 1, 1, 0));
    QCOMPARE(row(&input, 2)->value(), 100.0f);
    QCOMPARE(row(&input, 3)->value(), 0.0f);
    QVERIFY(spy.isEmpty());
}

void TestColorInputs::hueSurvivesGreys()
{
    ZelHSVColorInput input(orange(), true);
    input.show();
    connect(&input, &ZelColorInput::colorChanged, &input, &ZelColorInput::setColor);
    const float hue = row(&input, 0)->value();
    for (const int channel : {1, 2}) {
        sliderOf(row(&input, channel))->setValue(0);
        sliderOf(row(&input, channel))->setValue(60);
        QCOMPARE(row(&input, 0)->value(), hue);
    }
}

void TestColorInputs::hiddenInputsWait()
{
    QStackedWidget stack;
    auto *seen = new ZelRGBColorInput(orange(), false);
    auto *hidden = new ZelRGBColorInput(orange(), false);
    stack.addWidget(seen);
    stack.addWidget(hidden);
    stack.show();
    for (ZelColorInput *input : {seen, hidden})
        input->setColor(ZelColor(Space::RGB, 0, 1, 0));
    QCOMPARE(row(seen, 0)->value(), 0.0f);
    QCOMPARE(row(hidden, 0)->value(), 204.0f);
    stack.setCurrentWidget(hidden);
    QCOMPARE(row(hidden, 0)->value(), 0.0f);
    QCOMPARE(row(hidden, 1)->value(), 255.0f);
}

void TestColorInputs::displayValuesComeOutLinear()
{
    ZelRGBColorInput input(orange(), true);
    input.show();
    const ZelColor shown = policy()->gammaCorrect(orange());
    QCOMPARE(row(&input, 1)->value(), std::round(shown.toRGB()[1] * 255));
    QSignalSpy spy(&input, &ZelColorInput::colorChanged);
    sliderOf(row(&input, 0))->setValue(128);
    const auto [red, green, blue] = lastOf(spy).toRGB();
    QVERIFY(std::abs(red - std::pow(128 / 255.0f, 2.2f)) < 1e-5f);
    QVERIFY(std::abs(green - 0.4f) < 0.005f);

    spy.clear();
    input.updateGammaDisplay(false);
    QCOMPARE(row(&input, 0)->value(), std::round(red * 255));
    QVERIFY(spy.isEmpty());
}

void TestColorInputs::kelvinOfBlackIsNone()
{
    ZelTemperatureColorInput input(ZelColor(Space::RGB, 0, 0, 0), false);
    input.show();
    QCOMPARE(row(&input, 0)->value(), 0.0f);
    QCOMPARE(sliderOf(row(&input, 0))->value(), 2500);
    QSignalSpy spy(&input, &ZelColorInput::colorChanged);
    enter(fieldOf(row(&input, 0)), QStringLiteral("20000"));
    QCOMPARE(sliderOf(row(&input, 0))->value(), 9500);
    QCOMPARE(row(&input, 0)->value(), 20000.0f);
    const float kelvin = ZelColorChannel::channelValue(Mode::Temperature, lastOf(spy));
    QVERIFY(std::abs(kelvin - 20000) < 200);
}

void TestColorInputs::dyingFieldsTellNothing()
{
    auto *input = new ZelRGBColorInput(orange(), false);
    input->show();
    input->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(input));
    QDoubleSpinBox *field = fieldOf(row(input, 1));
    field->setFocus();
    field->selectAll();
    UserInput::type(field, QStringLiteral("7"));
    QCOMPARE(field->cleanText(), QStringLiteral("7"));
    QSignalSpy spy(input, &ZelColorInput::colorChanged);
    QVERIFY(spy.isEmpty());
    delete input;
    QVERIFY(spy.isEmpty());
}

ZEL_TEST_MAIN(TestColorInputs)
#include "tst_color_inputs.moc"
