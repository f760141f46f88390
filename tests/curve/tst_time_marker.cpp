// The time marker, and how all decorators that own items end.

#include "DecoratorAssertions.h"
#include "DecoratorBench.h"
#include "UserInput.h"

#include <ZelWidgets/ZelGridLabelDecorator>
#include <ZelWidgets/ZelGridRulerDecorator>
#include <ZelWidgets/ZelTimeMarkerDecorator>

#include <QGraphicsScene>
#include <QImage>
#include <QSignalSpy>

#include <cmath>

namespace {

using Side = ZelTimeMarkerDecorator::TrianglePosition;

} // namespace

class TestTimeMarker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void markerIsCutInTwo_data();
    void markerIsCutInTwo();
    void markerPartsStackApart();
    void markerIsDragged();
    void markerShowsThatTheMouseIsThere();
    void markerSurvivesAClearedScene();
    void markerStatesAreGuarded();
    void itemsEndWithTheSceneOrTheDecorator();
    void decoratorsMayEndInTheirSignals();
};

void TestTimeMarker::markerIsCutInTwo_data()
{
    QTest::addColumn<Side>("side");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::newRow("bottom") << Side::Bottom << -10.0 << 10.0;
    QTest::newRow("left") << Side::Left << -10.0 << 0.0;
    QTest::newRow("right") << Side::Right << 0.0 << 10.0;
}

void TestTimeMarker::markerIsCutInTwo()
{
    QFETCH(Side, side);
    QFETCH(double, from);
    QFETCH(double, to);
    Bench bench;
    QVERIFY(bench.isReady());
    ZelTimeMarkerDecorator marker(side);
    marker.setPen(QPen(Qt::black, 0));
    marker.setPosition(1);
    bench.add(marker);
    bench.update(marker);
    const double x = bench.pixel(1, 0).x();
    for (const double split : {1.0, 40.0}) {
        marker.setSplitHeight(split);
        bench.update(marker);
        QCOMPARE(bench.markerParts(), QList<QRectF>({{x + from, 0, to - from, 300 - split},
                                                     {x + from, 300 - split, to - from, split}}));
    }
    // A cut outside of the view leaves one part empty.
    marker.setSplitHeight(1000);
    bench.update(marker);
    QCOMPARE(bench.markerParts().value(0).height(), 0.0);
    QCOMPARE(bench.markerParts().value(1), QRectF(x + from, 0, to - from, 300));
}

void TestTimeMarker::markerPartsStackApart()
{
    Bench bench;
    QVERIFY(bench.isReady());
    bench.scene->addRect(-5, -1.5, 10, 3, Qt::NoPen, Qt::green);
    ZelTimeMarkerDecorator marker(Side::Bottom);
    marker.setPen(QPen(Qt::red, 4));
    marker.setSplitHeight(100);
    marker.setZOrderTop(-1);
    marker.setZOrderBottom(1);
    bench.add(marker);
    const QImage seen = bench.view.grab().toImage();
    QCOMPARE(seen.pixelColor(200, 195), QColor(Qt::green));
    QCOMPARE(seen.pixelColor(200, 205), QColor(Qt::red));
    QCOMPARE(seen.pixelColor(206, 298), QColor(Qt::red));
    QCOMPARE(seen.pixelColor(206, 285), QColor(Qt::green));
}

void TestTimeMarker::markerIsDragged()
{
    Bench bench;
    QVERIFY(bench.isReady());
    ZelTimeMarkerDecorator marker(Side::Bottom);
    bench.add(marker);
    QSignalSpy changed(&marker, &ZelTimeMarkerDecorator::markerPositionChanged);
    QWidget *area = bench.view.viewport();
    UserInput::press(area, {204, 150});
    QVERIFY(QApplication::overrideCursor());
    UserInput::move(area, {300, 10});
    UserInput::move(area, {300, 200});
    UserInput::move(area, {-60, 150});
    UserInput::release(area, {-60, 150});
    QVERIFY(QApplication::overrideCursor()); // the mouse is still there
    UserInput::move(area, {50, 150}, {}, Qt::NoButton);
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(changed, (QList<QVariantList>{{2.5F}, {-6.5F}}));
    UserInput::press(area, {204, 150});
    UserInput::move(area, {300, 10});
    QCOMPARE(changed.size(), 2);

    marker.setPosition(1e300);
    QCOMPARE(changed.value(2), QVariantList{std::numeric_limits<float>::max()});
    messages().expect(QtWarningMsg, QStringLiteral("Time marker: not a position: nan"));
    marker.setPosition(std::nan(""));
    QCOMPARE(changed.size(), 3);
}

void TestTimeMarker::markerShowsThatTheMouseIsThere()
{
    Bench bench;
    QVERIFY(bench.isReady());
    auto marker = std::make_unique<ZelTimeMarkerDecorator>(Side::Bottom);
    marker->setPen(QPen(Qt::black, 2));
    marker->setHoverPen(QPen(Qt::red, 2, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    bench.add(*marker);
    const auto look = [&bench] {
        const auto *triangle = bench.items<QGraphicsPolygonItem>().value(0);
        const auto *line = bench.items<QGraphicsLineItem>().value(1);
        const bool same = triangle->pen() == line->pen() &&
                          triangle->pen().joinStyle() == Qt::MiterJoin &&
                          triangle->brush() == QBrush(line->pen().color());
        return same ? line->pen().color() : QColor();
    };
    QCOMPARE(look(), QColor(Qt::black));
    QWidget *area = bench.view.viewport();
    UserInput::move(area, {205, 100}, {}, Qt::NoButton);
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
    QCOMPARE(look(), QColor(Qt::red));
    UserInput::move(area, {250, 100}, {}, Qt::NoButton);
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(look(), QColor(Qt::black));
    UserInput::move(area, {205, 100}, {}, Qt::NoButton);
    marker.reset();
    QVERIFY(!QApplication::overrideCursor());
}

void TestTimeMarker::markerSurvivesAClearedScene()
{
    Bench bench;
    ZelTimeMarkerDecorator marker(Side::Right);
    bench.add(marker);
    bench.scene->clear();
    marker.setPosition(3);
    marker.setPen(QPen(Qt::blue));
    marker.setZOrderTop(1);
    marker.setZOrderBottom(1);
    bench.update(marker);
    QCOMPARE(bench.scene->items().size(), 0);
}

void TestTimeMarker::markerStatesAreGuarded()
{
    ZelTimeMarkerDecorator marker(Side::Bottom);
    QSignalSpy changed(&marker, &ZelTimeMarkerDecorator::markerPositionChanged);
    marker.setScene(nullptr);
    marker.updateItems({0, 0, 1, 1}, {});
    auto scene = std::make_unique<QGraphicsScene>();
    marker.setScene(scene.get());
    const auto count = scene->items().size();
    QGraphicsScene other;
    marker.setScene(&other);
    marker.setScene(scene.get());
    QCOMPARE(other.items().size(), 0);
    QCOMPARE(scene->items().size(), count);
    const QString again = decoratorAssertion("sceneState() == NoSceneSet", "setScene", 643);
    QCOMPARE(messages().messages(QtDebugMsg),
             QStringList({decoratorAssertion("scene != nullptr", "setScene", 640),
                          decoratorAssertion("sceneState() == SceneValid", "updateItems", 696),
                          again, again}));
    messages().clear();
    scene.reset();
    marker.setPosition(1);
    marker.setPen(QPen(Qt::red));
    marker.setHoverPen(QPen(Qt::red));
    marker.setZOrderTop(1);
    marker.setZOrderBottom(1);
    marker.setUseHoverPen(true);
    marker.setScene(&other);
    marker.updateItems({0, 0, 1, 1}, {});
    QStringList expected;
    const QList<std::pair<const char *, int>> functions{
        {"setPosition", 730},  {"setPen", 745},          {"setHoverPen", 758},
        {"setZOrderTop", 768}, {"setZOrderBottom", 777}, {"setUseHoverPen", 786}};
    for (const auto &[function, line] : functions)
        expected.append(
            decoratorAssertion("sceneState() != SceneDeletedExternally", function, line));
    expected.append(again);
    expected.append(decoratorAssertion("sceneState() == SceneValid", "updateItems", 696));
    QCOMPARE(messages().messages(QtDebugMsg), expected);
    QCOMPARE(changed.size(), 0);
}

void TestTimeMarker::itemsEndWithTheSceneOrTheDecorator()
{
    const auto makeAll = [](Bench &bench) {
        std::vector<std::unique_ptr<ZelCurveViewDecorator2>> all;
        all.push_back(std::make_unique<ZelGridLabelDecorator>());
        all.push_back(std::make_unique<ZelGridRulerDecorator>());
        all.push_back(std::make_unique<ZelTimeMarkerDecorator>(Side::Bottom));
        for (const auto &decorator : all)
            bench.add(*decorator);
        return all;
    };
    Bench bench;
    auto first = makeAll(bench);
    QVERIFY(!bench.scene->items().isEmpty());
    first.clear();
    QVERIFY(bench.scene->items().isEmpty());
    const auto second = makeAll(bench);
    bench.scene.reset();
    for (const auto &decorator : second)
        decorator->updateItems({0, 0, 1, 1}, QTransform::fromScale(1, -1));
    QCOMPARE(messages().messages(QtDebugMsg).size(), 3);
}

void TestTimeMarker::decoratorsMayEndInTheirSignals()
{
    using Ruler = ZelGridRulerDecorator;
    Bench bench;
    QVERIFY(bench.isReady());
    QWidget *area = bench.view.viewport();
    for (int signal = 0; signal < 4; ++signal) {
        auto ruler = std::make_unique<Ruler>();
        auto marker = std::make_unique<ZelTimeMarkerDecorator>(Side::Bottom);
        bench.add(*ruler);
        bench.add(*marker);
        const auto end = [&ruler, &marker, signal] {
            signal < 3 ? ruler.reset() : marker.reset();
        };
        if (signal == 0)
            connect(ruler.get(), &Ruler::clicked, this, end);
        else if (signal == 1)
            connect(ruler.get(), &Ruler::moved, this, end);
        else if (signal == 2)
            connect(ruler.get(), &Ruler::released, this, end);
        else
            connect(marker.get(), &ZelTimeMarkerDecorator::markerPositionChanged, this, end);
        UserInput::drag(area, {100, 295}, {120, 295});
        UserInput::drag(area, {200, 100}, {300, 100});
        QCOMPARE(ruler == nullptr, signal < 3);
        QCOMPARE(marker == nullptr, signal == 3);
        UserInput::move(area, {50, 150}, {}, Qt::NoButton);
        QTRY_VERIFY(!QApplication::overrideCursor());
    }
}

ZEL_TEST_MAIN(TestTimeMarker)
#include "tst_time_marker.moc"
