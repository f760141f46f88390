#include "TestCase.h"
#include "UserInput.h"
#include "color/ZelSpectrumMath.h"
#include "color/ZelTriangleFill.h"
#include "color/ZelTriangleGeometry.h"

#include <ZelCore/ZelColorMath>
#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorTriangle>
#include <ZelWidgets/ZelHueSlider>
#include <ZelWidgets/ZelRGBSpectrum>
#include <ZelWidgets/ZelRGBSpectrumDisplay>

#include <QSignalSpy>
#include <QVBoxLayout>

#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;
constexpr int side = 301;

ZelColor hsv(float hue, float saturation, float value)
{
    return {ZelColor::Space::HSV, hue, saturation, value};
}

QColor lastColor(const QSignalSpy &spy)
{
    return toQColor(spy.last().first().value<ZelColor>());
}

bool isNear(QPointF one, QPointF other, double distance = 1e-6)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y()) < distance;
}

ZelTriangleGeometry geometryOf(int hue)
{
    ZelTriangleGeometry geometry;
    geometry.setSize({side, side});
    geometry.setHue(hue);
    return geometry;
}

QColor pixelAt(QWidget &widget, QPointF point)
{
    return widget.grab().toImage().pixelColor(point.toPoint());
}

} // namespace

class ColorPlanesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void planeHasTheBytesOfTheFormula_data();
    void planeHasTheBytesOfTheFormula();
    void pointsOfThePlaneAreClamped();
    void cornersStandForTheirColors();
    void anglesAndHuesAgree();
    void everyPlaceInTheTriangleHasItsColor();
    void nearestPointIsOnTheTriangle();
    void fillStaysInsideAndIsEven();
    void spectrumIsPicked();
    void planeFollowsTheHueAfterACalm();
    void displayShowsItsColorOnceItIsSeen();
    void displayKeepsTheHueOfGreys();
    void trianglePicksByMouse();
    void triangleGoesByKeys_data();
    void triangleGoesByKeys();
    void greyKeepsTheHue();
    void triangleIsPaintedAsPicked();
};

void ColorPlanesTest::planeHasTheBytesOfTheFormula_data()
{
    QTest::addColumn<float>("exponent");
    // The outer ones crowd nearly all bytes into a few floats.
    for (const float exponent : {1.0F, 1.0F / 2.2F, 0.7F, 1.8F, 0.01F, 300.0F})
        QTest::addRow("to the %g", double(exponent)) << exponent;
}

void ColorPlanesTest::planeHasTheBytesOfTheFormula()
{
    QFETCH(float, exponent);
    QList<float> hues{42.51F, 299.9F, -30.5F, 725.0F};
    for (int degrees = 0; degrees <= 360; degrees += 20)
        hues << float(degrees);
    for (const float hue : hues) {
        QImage expected(256, 256, QImage::Format_RGB888);
        for (int row = 0; row < 256; ++row) {
            uchar *byte = expected.scanLine(row);
            for (int column = 0; column < 256; ++column) {
                const auto rgb = ZelColorMath::hsvToRgb(
                    {hue, float(column) / 255.0F, float(255 - row) / 255.0F});
                for (const float channel : rgb)
                    *byte++ = uchar(int(std::pow(channel, exponent) * 255.0F));
            }
        }
        QVERIFY2(ZelSpectrumMath::plane(hue, exponent) == expected,
                 qPrintable(QString::number(hue)));
    }
}

void ColorPlanesTest::pointsOfThePlaneAreClamped()
{
    const QSize field(201, 101);
    const auto check = [&](QPointF point, float saturation, float value) {
        const auto part = ZelSpectrumMath::at(point, field);
        return part.saturation == saturation && part.value == value;
    };
    QVERIFY(check({200, 0}, 1, 1));
    QVERIFY(check({0, 100}, 0, 0));
    QVERIFY(check({50, 25}, 0.25F, 0.75F));
    QVERIFY(check({-7, 1e9}, 0, 0));
    QVERIFY(check({1e9, -7}, 1, 1));
    QCOMPARE(ZelSpectrumMath::at({3, 3}, {1, 0}).saturation, 0.0F);
    QCOMPARE(ZelSpectrumMath::pointOf({0.5F, 0.25F}, field), QPoint(101, 76));
    QCOMPARE(ZelSpectrumMath::markerColor(QColor(128, 128, 128)), QColor(Qt::white));
    QCOMPARE(ZelSpectrumMath::markerColor(QColor(129, 128, 128)), QColor(Qt::black));
}

void ColorPlanesTest::cornersStandForTheirColors()
{
    for (const int hue : {0, 77, 180, 359}) {
        const ZelTriangleGeometry geometry = geometryOf(hue);
        const QColor pure = QColor::fromHsv(hue, 255, 255);
        QVERIFY(isNear(geometry.pointOf(pure), geometry.pointA()));
        QVERIFY(isNear(geometry.pointOf(Qt::black), geometry.pointB()));
        QVERIFY(isNear(geometry.pointOf(Qt::white), geometry.pointC()));
        QCOMPARE(geometry.colorAt(geometry.pointA(), hue), pure);
        QCOMPARE(geometry.colorAt(geometry.pointB(), hue).rgb(), qRgb(0, 0, 0));
        QCOMPARE(geometry.colorAt(geometry.pointC(), hue).rgb(), qRgb(255, 255, 255));
    }
}

void ColorPlanesTest::anglesAndHuesAgree()
{
    const ZelTriangleGeometry geometry = geometryOf(0);
    QVERIFY(std::abs(geometry.angleA() - pi / 2) < 1e-9);
    QCOMPARE(geometry.outerRadius(), 150);
    QCOMPARE(geometry.penWidth(), 3);
    QCOMPARE(geometry.markerSize(), 12);
    QVERIFY(isNear(geometry.pointA(), {150, 30}));
    QVERIFY(isNear(geometry.huePoint(), {150, 15}));

    // Clockwise from the top; the screen's y goes down.
    QVERIFY(isNear(geometryOf(90).pointA(), {270, 150}));
    QVERIFY(isNear(geometryOf(180).pointA(), {150, 270}));
    QCOMPARE(geometry.angleAt({150, 150}), 0.0);
    QVERIFY(std::abs(geometry.angleAt({150, 200}) - 1.5 * pi) < 1e-9);
    QCOMPARE(ZelTriangleGeometry::hueAt(pi / 2), 0);
    for (int hue = 0; hue < 360; ++hue) {
        // The middle of a degree: the truncation decides nothing there.
        const double angle = geometryOf(hue).angleA() + pi / 360;
        QCOMPARE(ZelTriangleGeometry::hueAt(angle), hue);
        QVERIFY(geometryOf(hue).angleA() <= 2 * pi);
    }
}

void ColorPlanesTest::everyPlaceInTheTriangleHasItsColor()
{
    const ZelTriangleGeometry geometry = geometryOf(200);
    for (int saturation = 0; saturation <= 255; saturation += 15) {
        for (int value = 15; value <= 255; value += 15) {
            const QColor color = QColor::fromHsv(200, saturation, value);
            QCOMPARE(geometry.colorAt(geometry.pointOf(color), 200), color);
        }
    }
    // Where the two lines that define a point meet: of equal value, and of equal saturation.
    const QColor color = QColor::fromHsv(200, 51, 153);
    const QPointF a = geometry.pointA();
    const QPointF b = geometry.pointB();
    const QPointF c = geometry.pointC();
    const QLineF ofValue(a + (b - a) * 102 / 255, b + (c - b) * 153 / 255);
    const QLineF ofSaturation(a + (c - a) * 204 / 255, b);
    QPointF meeting;
    QCOMPARE(ofValue.intersects(ofSaturation, &meeting), QLineF::BoundedIntersection);
    QVERIFY(isNear(geometry.pointOf(color), meeting));
}

void ColorPlanesTest::nearestPointIsOnTheTriangle()
{
    const ZelTriangleGeometry geometry = geometryOf(0);
    const QPointF inside = geometry.center() + QPointF(5, 7);
    QCOMPARE(geometry.nearest(inside), inside);
    QCOMPARE(geometry.nearest({150, -500}), geometry.pointA());
    // B and C are the lower corners; below their side the foot of the perpendicular is nearest.
    QVERIFY(isNear(geometry.nearest({170, 290}), {170, geometry.pointB().y()}));
    QCOMPARE(geometry.nearest({-900, 900}), geometry.pointB());
    ZelTriangleGeometry nothing;
    nothing.setSize({0, 0});
    QVERIFY(nothing.colorAt(nothing.nearest({3, 4}), 10).isValid());
}

void ColorPlanesTest::fillStaysInsideAndIsEven()
{
    const ZelTriangleGeometry geometry = geometryOf(33);
    const QRgb outside = qRgba(1, 2, 3, 255);
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(outside);
    ZelTriangleFill::fill(image, {{{geometry.pointA(), QColor::fromHsv(33, 255, 255).rgb()},
                                   {geometry.pointB(), qRgb(0, 0, 0)},
                                   {geometry.pointC(), qRgb(255, 255, 255)}}});
    int filled = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const QPointF center(x + 0.5, y + 0.5);
            const bool isInside = geometry.nearest(center) == center;
            QCOMPARE(image.pixel(x, y) != outside, isInside);
            if (!isInside)
                continue;
            ++filled;
            const QColor expected = geometry.colorAt(center, 33);
            const QColor pixel = image.pixelColor(x, y);
            // The expected one is rounded in saturation and value.
            QVERIFY(std::abs(expected.red() - pixel.red()) <= 2);
            QVERIFY(std::abs(expected.green() - pixel.green()) <= 2);
            QVERIFY(std::abs(expected.blue() - pixel.blue()) <= 2);
        }
    }
    // Of an equilateral triangle in a circle of 120.
    QVERIFY(std::abs(filled - 0.75 * std::sqrt(3) * 120 * 120) < 120);

    // Larger than the image, and without any height.
    QImage small(4, 4, QImage::Format_RGB32);
    small.fill(outside);
    ZelTriangleFill::fill(small, {{{{-1e6, 2}, outside}, {{5, 2}, outside}, {{1e6, 2}, outside}}});
    QCOMPARE(small.pixel(1, 1), outside);
    const QRgb blue = qRgb(0, 0, 255);
    ZelTriangleFill::fill(small, {{{{-1e4, -1e4}, blue}, {{1e5, -1e4}, blue}, {{0, 1e5}, blue}}});
    QCOMPARE(small.pixel(0, 0), blue);
    QCOMPARE(small.pixel(3, 3), blue);
}

void ColorPlanesTest::spectrumIsPicked()
{
    ZelRGBSpectrum spectrum(hsv(120, 0.5F, 0.5F));
    spectrum.resize(201, 201);
    spectrum.show();
    QSignalSpy spy(&spectrum, &ZelRGBSpectrum::colorChanged);
    const auto last = [&] {
        return std::pair(spy.last()[0].toFloat(), spy.last()[1].toFloat());
    };
    UserInput::press(&spectrum, {200, 0});
    QCOMPARE(last(), std::pair(1.0F, 1.0F));
    QVERIFY(spectrum.hasMouseTracking());
    UserInput::move(&spectrum, {-40, 350});
    QCOMPARE(last(), std::pair(0.0F, 0.0F));
    UserInput::release(&spectrum, {100, 100});
    QVERIFY(!spectrum.hasMouseTracking());
    QCOMPARE(spy.count(), 2);
    UserInput::press(&spectrum, {10, 10}, {}, Qt::RightButton);
    UserInput::move(&spectrum, {10, 10}, {}, Qt::NoButton);
    QCOMPARE(spy.count(), 2);

    QTest::keyClick(&spectrum, Qt::Key_Right);
    QTest::keyClick(&spectrum, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(last(), std::pair(0.01F, 0.1F));
    QTest::keyClick(&spectrum, Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(last(), std::pair(0.0F, 0.1F));
    spectrum.setColor(hsv(0, 1, 1));
    QCOMPARE(spy.count(), 5);
    QCOMPARE(spectrum.sizeHint(), QSize(200, 200));
    QCOMPARE(spectrum.heightForWidth(77), 77);
}

void ColorPlanesTest::planeFollowsTheHueAfterACalm()
{
    ZelGammaPolicy::get()->setEnableGammaCorrection(false);
    ZelRGBSpectrum spectrum(hsv(0, 0.5F, 0));
    spectrum.resize(256, 256);
    spectrum.show();
    const QPoint pure(252, 3);
    QVERIFY(pixelAt(spectrum, pure).red() > 240);
    QVERIFY(pixelAt(spectrum, pure).blue() < 10);
    // Another colour alone moves the marker only.
    spectrum.setColor(hsv(120, 0.25F, 0.25F));
    auto *timer = spectrum.findChild<QTimer *>();
    QVERIFY(!timer->isActive());
    QVERIFY(pixelAt(spectrum, pure).red() > 240);
    spectrum.setHue(200);
    spectrum.setHue(240);
    QVERIFY(timer->isActive());
    QVERIFY(pixelAt(spectrum, pure).red() > 240);
    QTRY_VERIFY(pixelAt(spectrum, pure).blue() > 240);
    QVERIFY(pixelAt(spectrum, pure).red() < 10);
    QVERIFY(!timer->isActive());

    const QPoint dark(250, 200);
    const int plain = pixelAt(spectrum, dark).blue();
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    QTRY_VERIFY(pixelAt(spectrum, dark).blue() > plain + 40);
}

void ColorPlanesTest::displayShowsItsColorOnceItIsSeen()
{
    ZelRGBSpectrumDisplay display(hsv(120, 0.5F, 0.5F));
    auto *slider = display.findChild<ZelHueSlider *>();
    QSignalSpy spy(&display, qOverload<ZelColor>(&ZelSpectrumDisplay::colorChanged));
    display.setColor(hsv(200.6F, 0.25F, 0.75F));
    QCOMPARE(slider->value(), 0);
    display.show();
    QCOMPARE(slider->value(), 201);
    auto *spectrum = display.findChild<ZelRGBSpectrum *>();
    // The plane is right at once: nothing of another hue is seen.
    const int hue = toDisplayQColor(hsv(201, 1, 1)).hsvHue();
    QVERIFY(std::abs(pixelAt(*spectrum, spectrum->rect().topRight()).hsvHue() - hue) <= 3);
    display.setColor(hsv(30, 1, 1));
    QCOMPARE(slider->value(), 30);
    QCOMPARE(spy.count(), 0);
    QVERIFY(!display.signalsBlocked());

    slider->setValue(50);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().first().value<ZelColor>(), hsv(50, 1, 1));
    QVERIFY(spectrum->findChild<QTimer *>()->isActive());
}

void ColorPlanesTest::displayKeepsTheHueOfGreys()
{
    ZelRGBSpectrumDisplay display(hsv(77, 0.5F, 0.5F));
    display.resize(240, 240);
    display.show();
    auto *spectrum = display.findChild<ZelRGBSpectrum *>();
    QSignalSpy spy(&display, qOverload<ZelColor>(&ZelSpectrumDisplay::colorChanged));
    UserInput::drag(spectrum, spectrum->rect().center(), spectrum->rect().bottomLeft());
    QCOMPARE(spy.last().first().value<ZelColor>(), hsv(77, 0, 0));
    QCOMPARE(display.findChild<ZelHueSlider *>()->value(), 77);
    UserInput::press(spectrum, spectrum->rect().topRight());
    QCOMPARE(spy.last().first().value<ZelColor>(), hsv(77, 1, 1));
    const int count = int(spy.count());
    QTest::keyClick(spectrum, Qt::Key_Down);
    QCOMPARE(spy.count(), count + 1);
    QCOMPARE(spy.last().first().value<ZelColor>(), hsv(77, 1, 0.99F));
}

void ColorPlanesTest::trianglePicksByMouse()
{
    ZelColorTriangle triangle(hsv(0, 1, 1));
    triangle.resize(side, side);
    triangle.show();
    QSignalSpy spy(&triangle, &ZelSpectrumDisplay::colorChanged);
    UserInput::press(&triangle, {290, 150});
    QCOMPARE(lastColor(spy).hsvHue(), 90);
    // A drag that began on the ring goes on turning the hue.
    UserInput::move(&triangle, {150, 160});
    QCOMPARE(lastColor(spy).hsvHue(), 180);
    UserInput::release(&triangle, {150, 160});
    QCOMPARE(spy.count(), 2);

    // The centre has a third of each corner: all three channels have the third of white.
    UserInput::press(&triangle, {150, 150});
    QCOMPARE(lastColor(spy).hsvHue(), 180);
    QCOMPARE(lastColor(spy).value(), 170);
    QCOMPARE(lastColor(spy).red(), 85);
    // A drag that began in the triangle stays in it; A is at the bottom now.
    UserInput::move(&triangle, {150, 299});
    QCOMPARE(lastColor(spy).rgb(), QColor::fromHsv(180, 255, 255).rgb());
    const int count = int(spy.count());
    UserInput::move(&triangle, {150, 298});
    QCOMPARE(spy.count(), count);
    UserInput::release(&triangle, {150, 298});
    UserInput::move(&triangle, {150, 150});
    UserInput::press(&triangle, {150, 150}, {}, Qt::RightButton);
    QCOMPARE(spy.count(), count);
    QVERIFY(spy.last().first().value<ZelColor>().name().empty());
}

void ColorPlanesTest::triangleGoesByKeys_data()
{
    QTest::addColumn<QColor>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QColor>("to");
    const auto row = [](const char *name, std::array<int, 3> from, Qt::Key key, bool shift,
                        std::array<int, 3> to) {
        QTest::newRow(name) << QColor::fromHsv(from[0], from[1], from[2]) << key << shift
                            << QColor::fromHsv(to[0], to[1], to[2]);
    };
    row("hue below 0", {0, 255, 255}, Qt::Key_Left, false, {359, 255, 255});
    row("hue above 359", {359, 255, 255}, Qt::Key_Right, false, {0, 255, 255});
    row("value up to its floor", {120, 255, 3}, Qt::Key_Up, false, {120, 255, 0});
    row("value down to its ceiling", {120, 255, 252}, Qt::Key_Down, false, {120, 255, 255});
    row("saturation less", {120, 204, 255}, Qt::Key_Up, true, {120, 199, 255});
    row("saturation more", {120, 252, 255}, Qt::Key_Down, true, {120, 255, 255});
}

void ColorPlanesTest::triangleGoesByKeys()
{
    QFETCH(QColor, from);
    QFETCH(Qt::Key, key);
    QFETCH(bool, shift);
    QFETCH(QColor, to);
    ZelColorTriangle triangle(fromQColor(from));
    QSignalSpy spy(&triangle, &ZelSpectrumDisplay::colorChanged);
    QTest::keyClick(&triangle, key, shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(lastColor(spy).rgb(), to.rgb());
}

void ColorPlanesTest::greyKeepsTheHue()
{
    ZelColorTriangle triangle(hsv(200, 1, 1));
    QSignalSpy spy(&triangle, &ZelSpectrumDisplay::colorChanged);
    triangle.setColor({ZelColor::Space::RGB, 0.5F, 0.5F, 0.5F});
    triangle.setColor({ZelColor::Space::RGB, 0, 0, 0});
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(&triangle, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&triangle, Qt::Key_Down);
    QCOMPARE(spy.count(), 1);
    for (int i = 0; i < 51; ++i)
        QTest::keyClick(&triangle, Qt::Key_Down);
    QCOMPARE(lastColor(spy).rgb(), QColor::fromHsv(200, 5, 255).rgb());
    // Down to black and up again loses nothing.
    for (int i = 0; i < 51; ++i)
        QTest::keyClick(&triangle, Qt::Key_Up);
    QCOMPARE(lastColor(spy).rgb(), qRgb(0, 0, 0));
    for (int i = 0; i < 51; ++i)
        QTest::keyClick(&triangle, Qt::Key_Down);
    QCOMPARE(lastColor(spy).rgb(), QColor::fromHsv(200, 5, 255).rgb());
}

void ColorPlanesTest::triangleIsPaintedAsPicked()
{
    ZelColorTriangle triangle(hsv(0, 0, 0.5F));
    triangle.resize(side, side);
    const ZelTriangleGeometry geometry = geometryOf(0);
    const QPointF place = geometry.center() + QPointF(20, -10);
    const QColor inside = pixelAt(triangle, place);
    const QColor expected = geometry.colorAt(place, 0);
    QVERIFY(std::abs(inside.red() - expected.red()) <= 4);
    QVERIFY(std::abs(inside.green() - expected.green()) <= 4);

    // The ring at the right has hue 90; beyond it there is the window.
    const QColor ring = pixelAt(triangle, {285, 150});
    QVERIFY(std::abs(ring.hsvHue() - 90) <= 2);
    QCOMPARE(ring.hsvSaturation(), 255);
    QCOMPARE(pixelAt(triangle, {2, 2}), triangle.palette().color(QPalette::Window));
    QPalette other = triangle.palette();
    other.setColor(QPalette::Window, Qt::darkMagenta);
    triangle.setPalette(other);
    QCOMPARE(pixelAt(triangle, {2, 2}), QColor(Qt::darkMagenta));

    // Hue 120 turns the pure corner to the lower right.
    triangle.setColor(hsv(120, 1, 0.2F));
    const QPointF nearA = geometry.center() + (geometryOf(120).pointA() - geometry.center()) * 0.9;
    QVERIFY(pixelAt(triangle, nearA).green() > 220);
    triangle.resize(0, 0);
    QVERIFY(triangle.grab().isNull());
}

ZEL_TEST_MAIN(ColorPlanesTest)
#include "tst_color_planes.moc"
