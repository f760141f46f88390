#include "DecoratorAssertions.h"
#include "TestCase.h"

#include "curve/ZelGridLines.h"

#include <ZelWidgets/ZelGridPositioning>

#include <QRandomGenerator>
#include <QRectF>
#include <QTransform>

#include <cmath>
#include <limits>

namespace {

using Lines = std::vector<float>;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A view that shows so many pixels a unit, y pointing up.
QTransform scaled(double x, double y)
{
    return QTransform::fromScale(x, -y);
}

} // namespace

class TestGridPositions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void spacingIsTheLeastWideEnough();
    void positionsAreTheMultiplesWithinTheRange();
    void hostileRangesStayBounded_data();
    void hostileRangesStayBounded();
    void spacingAdaptsToTheZoom_data();
    void spacingAdaptsToTheZoom();
    void equalSpacingIsPerAxis();
    void settersRefuseWhatIsNotPositive();
    void degenerateViewsHaveNoLines();
};

void TestGridPositions::spacingIsTheLeastWideEnough()
{
    QRandomGenerator random(7);
    const auto anyScale = [&random] {
        return std::pow(10, random.generateDouble() * 20 - 10);
    };
    for (int i = 0; i < 20000; ++i) {
        const double sceneSize = anyScale();
        const double minStep = sceneSize * std::pow(10, random.generateDouble() * 10 - 9);
        const double viewSize = 1 + random.generateDouble() * 8000;
        const double minPixels = 1 + random.bounded(200);
        const double spacing = ZelGridLines::spacing(sceneSize, viewSize, minStep, minPixels);
        const double steps = spacing / minStep;
        const double stepPixels = viewSize * minStep / sceneSize;
        QVERIFY(std::abs(steps - std::round(steps)) < 1e-9 * steps);
        QVERIFY(steps * stepPixels >= minPixels * (1 - 1e-8));
        QVERIFY(steps < 1.5 || (steps - 1) * stepPixels < minPixels * (1 + 1e-8));
        // Three units are just enough, whatever the last digit of the width.
        QCOMPARE(ZelGridLines::spacing(sceneSize, sceneSize * (20.0 / 3), 1, 20), 3.0);
    }
}

void TestGridPositions::positionsAreTheMultiplesWithinTheRange()
{
    QCOMPARE(ZelGridLines::positions(-2.5, 2.5, 1), Lines({-2, -1, 0, 1, 2}));
    QCOMPARE(ZelGridLines::positions(-1, 1, 0.5), Lines({-1, -0.5, 0, 0.5, 1}));
    QCOMPARE(ZelGridLines::positions(0.1, 0.9, 1), Lines());
    // A zero never has a sign: labels would show it.
    QVERIFY(!std::signbit(ZelGridLines::positions(-0.5, 0.5, 1).front()));
    QRandomGenerator random(3);
    for (int i = 0; i < 2000; ++i) {
        const double spacing = std::pow(10, random.generateDouble() * 8 - 4);
        const double from = spacing * (random.generateDouble() - 0.5) * 1000;
        const double to = from + spacing * random.generateDouble() * 300;
        const Lines lines = ZelGridLines::positions(from, to, spacing);
        const double first = lines.empty() ? 0 : std::round(double(lines.front()) / spacing);
        QVERIFY(lines.size() + 1 >= size_t((to - from) / spacing));
        for (size_t k = 0; k < lines.size(); ++k) {
            QCOMPARE(lines[k], float((first + double(k)) * spacing));
            QVERIFY(lines[k] >= float(from) && lines[k] <= float(to));
        }
    }
}

void TestGridPositions::hostileRangesStayBounded_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<bool>("hasLines");
    QTest::newRow("beyond int") << -1e12 << 1e12 << 1.0 << true;
    QTest::newRow("farthest curve") << -1e30 << 1e30 << 1.0 << true;
    QTest::newRow("beyond float") << -1e300 << 1e300 << 1e295 << true;
    QTest::newRow("far away") << 1e17 << 1e17 + 1000 << 1.0 << true;
    QTest::newRow("tiny spacing") << 0.0 << 1.0 << 1e-300 << true;
    QTest::newRow("vanishing spacing") << 0.0 << 1e20 << 1e-300 << false;
    QTest::newRow("endless") << -infinite << infinite << 1.0 << false;
    QTest::newRow("no number") << notANumber << 1.0 << 1.0 << false;
    QTest::newRow("no spacing") << 0.0 << 1.0 << 0.0 << false;
    QTest::newRow("wrong way") << 1.0 << 0.0 << 0.1 << false;
}

void TestGridPositions::hostileRangesStayBounded()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, spacing);
    QFETCH(bool, hasLines);
    const Lines lines = ZelGridLines::positions(from, to, spacing);
    QCOMPARE(!lines.empty(), hasLines);
    QVERIFY(lines.size() <= size_t(ZelGridLines::most));
    for (const float line : lines)
        QVERIFY(std::isfinite(line) && line >= float(from) && line <= float(to));
}

void TestGridPositions::spacingAdaptsToTheZoom_data()
{
    QTest::addColumn<double>("pixels");
    QTest::addColumn<double>("factor");
    QTest::addColumn<Lines>("expected");
    QTest::newRow("coarse") << 7.0 << 1.0 << Lines({-9, -6, -3, 0, 3, 6, 9});
    QTest::newRow("never finer than the step") << 25.0 << 5.0 << Lines({-10, -5, 0, 5, 10});
    QTest::newRow("no 1-2-5") << 3.0 << 1.0 << Lines({-7, 0, 7});
    QTest::newRow("factor after rounding") << 7.0 << 2.0 << Lines({-6, 0, 6});
}

void TestGridPositions::spacingAdaptsToTheZoom()
{
    QFETCH(double, pixels);
    QFETCH(double, factor);
    QFETCH(Lines, expected);
    const QRectF area(-10, -10, 20, 20);
    ZelGridResizingPositioning grid;
    grid.setSpacingFactorX(factor);
    const auto across = grid.linePositions(area, scaled(pixels, 1000));
    QCOMPARE(across.first, expected);
    QCOMPARE(across.second.size(), size_t(21));
    ZelGridResizingPositioning upright;
    upright.setSpacingFactorY(factor);
    const auto up = upright.linePositions(area, scaled(100, pixels));
    QCOMPARE(up.first.size(), size_t(21));
    QCOMPARE(up.second, expected);
}

void TestGridPositions::equalSpacingIsPerAxis()
{
    const QRectF area(-1, -2, 2, 4);
    const auto both = ZelGridEqualPositioning(0.5, 2).linePositions(area, scaled(1, 1));
    QCOMPARE(both.first, Lines({-1, -0.5, 0, 0.5, 1}));
    QCOMPARE(both.second, Lines({-2, 0, 2}));
    const auto one = ZelGridEqualPositioning(-1, 2).linePositions(area, scaled(1, 1));
    QCOMPARE(one.first, Lines());
    QCOMPARE(one.second, both.second);
    QCOMPARE(messages().messages(QtDebugMsg), QStringList());
}

void TestGridPositions::settersRefuseWhatIsNotPositive()
{
    ZelGridResizingPositioning grid;
    grid.setSpacingFactorX(0);
    grid.setSpacingFactorY(-2);
    grid.setMinSceneWidth(-1);
    grid.setMinSceneHeight(notANumber);
    grid.setMinPixelWidth(0);
    grid.setMinPixelHeight(0);
    QCOMPARE(messages().messages(QtDebugMsg),
             (QStringList{
                 decoratorAssertion("factor > 0.0", "setSpacingFactorX", 89),
                 decoratorAssertion("factor > 0.0", "setSpacingFactorY", 97),
                 decoratorAssertion("minSceneWidth > 0.0", "setMinSceneWidth", 105),
                 decoratorAssertion("minSceneHeight > 0.0", "setMinSceneHeight", 113),
                 decoratorAssertion("minPixelWidth > 0u", "setMinPixelWidth", 121),
                 decoratorAssertion("minPixelHeight > 0u", "setMinPixelHeight", 129),
             }));
    const auto [xs, ys] = grid.linePositions(QRectF(-5, -5, 10, 10), scaled(10, 5));
    QCOMPARE(xs, Lines({-4, -2, 0, 2, 4}));
    QCOMPARE(ys, Lines({-4, 0, 4}));
}

void TestGridPositions::degenerateViewsHaveNoLines()
{
    const QString noExtent = decoratorAssertion("sceneSize > 0.0", "spacing", 184);
    const QString noPixels = decoratorAssertion("viewSize > 0.0", "spacing", 185);
    const QString noRange = decoratorAssertion("to > from", "positions", 163);
    const QString noSpacing = decoratorAssertion("spacing > 0", "positions", 164);
    const ZelGridResizingPositioning grid;

    QCOMPARE(grid.linePositions({0, 0, 0, 2}, scaled(50, 50)).first, Lines());
    QCOMPARE(messages().messages(QtDebugMsg), QStringList({noExtent, noRange, noSpacing}));
    messages().clear();

    // Mirrored: y may be, x may not.
    const auto mirrored = grid.linePositions({0, 0, 2, 2}, QTransform::fromScale(-50, -50));
    QCOMPARE(mirrored.first, Lines());
    QCOMPARE(mirrored.second, Lines({0, 1, 2}));
    QCOMPARE(messages().messages(QtDebugMsg), QStringList({noPixels, noSpacing}));
}

ZEL_TEST_MAIN(TestGridPositions)
#include "tst_grid_positions.moc"
