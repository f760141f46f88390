#include "DecoratorAssertions.h"
#include "TestCase.h"
#include "UserInput.h"

#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelFrameDecorator2>
#include <ZelWidgets/ZelGridDecorator2>
#include <ZelWidgets/ZelGridLabelDecorator>
#include <ZelWidgets/ZelGridPositioning>
#include <ZelWidgets/ZelGridRulerDecorator>
#include <ZelWidgets/ZelTimeMarkerDecorator>
#include <ZelWidgets/ZelVLineDecorator2>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>

#include <cmath>

namespace {

using Side = ZelTimeMarkerDecorator::TrianglePosition;

/// What a decorator paints of an area in an image whose axes have different scales, y pointing up.
QImage painted(ZelCurveViewDecorator2 &decorator, const QRectF &area, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QTransform toPixels =
        QTransform::fromScale(size.width() / area.width(), -size.height() / area.height());
    painter.translate(-toPixels.mapRect(area).topLeft());
    painter.setTransform(toPixels, true);
    decorator.paint(painter, area, toPixels);
    return image;
}

/// The lengths of the painted stretches of a row or column of pixels.
QList<int> widths(const QImage &image, Qt::Orientation along, int at)
{
    const QImage turned =
        along == Qt::Horizontal ? image : image.transformed(QTransform(0, 1, 1, 0, 0, 0));
    QList<int> result;
    bool inside = false;
    for (int x = 0; x < turned.width(); ++x) {
        const bool dark = qGray(turned.pixel(x, at)) < 128;
        if (dark && !inside)
            result.append(0);
        inside = dark;
        if (dark)
            ++result.last();
    }
    return result;
}

/// A scene of its own with a view of 400 x 300 pixels, 40 a unit across and 100 a unit up, of the
/// area (-5, -1.5) to (5, 1.5).
struct Bench
{
    Bench()
        : scene(std::make_unique<QGraphicsScene>(-100, -100, 200, 200))
        , view(scene.get())
    {
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setTransform(QTransform::fromScale(40, -100));
        view.resize(400, 300);
        view.centerOn(0, 0);
        view.show();
    }

    bool isReady()
    {
        return QTest::qWaitForWindowExposed(&view) && area() == QRectF(-5, -1.5, 10, 3);
    }
    QRectF area() const { return view.mapToScene(view.viewport()->rect()).boundingRect(); }
    void add(ZelCurveViewDecorator2 &decorator)
    {
        decorator.setScene(scene.get());
        update(decorator);
    }
    void update(ZelCurveViewDecorator2 &decorator)
    {
        decorator.updateItems(area(), view.transform());
    }
    QPoint pixel(double x, double y) const { return view.mapFromScene(QPointF(x, y)); }
    /// The items of a kind, those behind first.
    template <typename Item>
    QList<Item *> items() const
    {
        QList<Item *> found;
        const QList<QGraphicsItem *> all = scene->items(Qt::AscendingOrder);
        for (QGraphicsItem *item : all) {
            if (auto *wanted = dynamic_cast<Item *>(item))
                found.append(wanted);
        }
        return found;
    }
    /// The rectangles of the marker's parts, in pixels from the top left of the view.
    QList<QRectF> markerParts() const
    {
        QList<QRectF> parts;
        const QList<QGraphicsItem *> all = scene->items(Qt::AscendingOrder);
        for (const QGraphicsItem *item : all) {
            if (item->flags() & QGraphicsItem::ItemClipsChildrenToShape)
                parts.append(
                    item->deviceTransform(view.viewportTransform()).mapRect(item->boundingRect()));
        }
        return parts;
    }

    std::unique_ptr<QGraphicsScene> scene;
    QGraphicsView view;
};

} // namespace

class TestCurveDecorators : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void linesKeepTheirWidthOnScreen();
    void verticalLineOnlyWithinTheArea();
    void gridPaintsWhatThePositioningSays();
    void nullPositioningIsRefused();
    void labelsStandAtTheirLines();
    void labelsFollowTheFont();
    void labelsAreReplacedAndBounded();
    void rulerIsABandOfPixels();
    void rulerTellsOfTheMouse();
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

void TestCurveDecorators::linesKeepTheirWidthOnScreen()
{
    const QRectF area(-1, -10, 2, 20);
    const QSize size(400, 300);
    ZelAxisDecorator axes;
    axes.setPen(QPen(Qt::black, 5));
    const QImage cross = painted(axes, area, size);
    QCOMPARE(widths(cross, Qt::Horizontal, 20), QList<int>({5}));
    QCOMPARE(widths(cross, Qt::Vertical, 20), QList<int>({5}));
    QCOMPARE(cross.pixel(200, 20), qRgb(0, 0, 0));
    QCOMPARE(cross.pixel(20, 150), qRgb(0, 0, 0));

    // Half of it is outside.
    ZelFrameDecorator2 frame;
    frame.setPen(QPen(Qt::black, 2));
    const QImage framed = painted(frame, area.adjusted(0.1, 1, -0.1, -1), size);
    QCOMPARE(widths(framed, Qt::Horizontal, 150), QList<int>({1, 1}));
}

void TestCurveDecorators::verticalLineOnlyWithinTheArea()
{
    const QRectF area(0, 0, 10, 1);
    const QSize size(200, 20);
    ZelVLineDecorator2 line;
    line.setPen(QPen(Qt::black, 3));
    for (const double x : {0.0, 5.0, 10.0, -0.01, 10.01, std::nan("")}) {
        line.setPosition(x);
        const bool isPainted = !widths(painted(line, area, size), Qt::Horizontal, 10).isEmpty();
        QCOMPARE(isPainted, x >= 0 && x <= 10);
    }
}

void TestCurveDecorators::gridPaintsWhatThePositioningSays()
{
    const QRectF area(-2.5, -1.5, 5, 3);
    ZelGridDecorator2 grid;
    grid.setPen(QPen(Qt::black, 3));
    const QImage byOne = painted(grid, area, {500, 60});
    QCOMPARE(widths(byOne, Qt::Horizontal, 20), QList<int>({3, 3, 3, 3, 3}));
    QCOMPARE(widths(byOne, Qt::Vertical, 20), QList<int>({3, 3, 3}));
    grid.setPositioning(std::make_unique<ZelGridEqualPositioning>(2, 0));
    const QImage byTwo = painted(grid, area, {500, 60});
    QCOMPARE(widths(byTwo, Qt::Horizontal, 20), QList<int>({3, 3, 3}));
    QVERIFY(widths(byTwo, Qt::Vertical, 20).isEmpty());
}

void TestCurveDecorators::nullPositioningIsRefused()
{
    ZelGridDecorator2 grid;
    ZelGridLabelDecorator labels;
    grid.setPositioning(nullptr);
    labels.setPositioning(nullptr);
    QCOMPARE(messages().messages(QtDebugMsg),
             QStringList({decoratorAssertion("positioning != nullptr", "setPositioning", 213),
                          decoratorAssertion("positioning != nullptr", "setPositioning", 342)}));
    Bench bench;
    bench.add(labels);
    QVERIFY(!bench.items<QGraphicsSimpleTextItem>().isEmpty());
    QCOMPARE(widths(painted(grid, {-2.5, -1.5, 5, 3}, {500, 60}), Qt::Horizontal, 20).size(), 5);
}

void TestCurveDecorators::labelsStandAtTheirLines()
{
    Bench bench;
    QVERIFY(bench.isReady());
    ZelGridLabelDecorator labels;
    labels.setPositioning(std::make_unique<ZelGridEqualPositioning>(2.5, 0.75));
    labels.setLabelColor(Qt::red);
    labels.setZOrderHorizontalLabels(3);
    labels.setZOrderVerticalLabels(2);
    bench.add(labels);
    const QFontMetrics metrics{QFont()};
    QStringList values;
    QStringList times;
    const QList<QGraphicsSimpleTextItem *> items = bench.items<QGraphicsSimpleTextItem>();
    for (const QGraphicsSimpleTextItem *item : items) {
        QCOMPARE(item->brush(), QBrush(Qt::red));
        const QRectF seen =
            item->deviceTransform(bench.view.viewportTransform()).mapRect(item->boundingRect());
        if (item->zValue() == 3) {
            times.append(item->text());
            const double time = QStringView(item->text()).chopped(1).toDouble();
            QVERIFY(std::abs(seen.center().x() - bench.pixel(time, 0).x()) < 1);
            QVERIFY(std::abs(seen.top() - (300 - metrics.height())) < 1);
        } else {
            QCOMPARE(item->zValue(), 2.0);
            values.append(item->text());
            QVERIFY(std::abs(seen.center().y() - bench.pixel(0, item->text().toDouble()).y()) < 1);
            QVERIFY(std::abs(seen.left()) < 1);
        }
    }
    QCOMPARE(values.join(QLatin1Char(' ')), QStringLiteral("-1.5 -0.75 0 0.75 1.5"));
    QCOMPARE(times.join(QLatin1Char(' ')), QStringLiteral("-5s -2.5s 0s 2.5s 5s"));

    labels.setPositioning(std::make_unique<ZelGridEqualPositioning>(1500, 0));
    labels.updateItems({1000, 0, 1000, 1}, bench.view.transform());
    QCOMPARE(bench.items<QGraphicsSimpleTextItem>().value(0)->text(), QStringLiteral("1.5e+03s"));
}

void TestCurveDecorators::labelsFollowTheFont()
{
    const QFont before = QApplication::font();
    Bench bench;
    ZelGridLabelDecorator labels;
    QFont font = before;
    for (const auto &[size, labelSize] : {std::pair(9.5, 9.5), {10.0, 7.5}, {20.0, 13.0}}) {
        font.setPointSizeF(size);
        QApplication::setFont(font);
        bench.add(labels);
        QApplication::setFont(before);
        QCOMPARE(bench.items<QGraphicsSimpleTextItem>().value(0)->font().pointSizeF(), labelSize);
    }
}

void TestCurveDecorators::labelsAreReplacedAndBounded()
{
    Bench bench;
    QVERIFY(bench.isReady());
    ZelGridLabelDecorator labels;
    labels.updateItems(bench.area(), bench.view.transform());
    QCOMPARE(messages().messages(QtDebugMsg),
             QStringList(decoratorAssertion("!scene_.isNull()", "updateItems", 290)));
    bench.add(labels);
    const auto count = bench.items<QGraphicsSimpleTextItem>().size();
    QCOMPARE(count, 11 + 3);
    bench.update(labels);
    QCOMPARE(bench.items<QGraphicsSimpleTextItem>().size(), count);
    // Nothing of this has a place on a screen.
    labels.updateItems({-1e30, -1e30, 2e30, 2e30}, bench.view.transform());
    QVERIFY(bench.items<QGraphicsSimpleTextItem>().size() < 10000);
    labels.updateItems(bench.area(), QTransform::fromScale(0, 0));
    QCOMPARE(bench.items<QGraphicsSimpleTextItem>().size(), count);
    bench.scene->clear();
    bench.update(labels);
    QCOMPARE(bench.items<QGraphicsSimpleTextItem>().size(), count);
}

void TestCurveDecorators::rulerIsABandOfPixels()
{
    Bench bench;
    QVERIFY(bench.isReady());
    ZelGridRulerDecorator ruler;
    ruler.updateItems(bench.area(), bench.view.transform());
    QCOMPARE(messages().messages(QtDebugMsg),
             QStringList(decoratorAssertion("!scene_.isNull()", "updateItems", 422)));
    ruler.setColor(Qt::red);
    ruler.setBorderColor(Qt::blue);
    ruler.setBorderWidth(2);
    ruler.setZOrder(4);
    bench.add(ruler);
    const auto *band = bench.items<QGraphicsRectItem>().value(0);
    QVERIFY(band);
    QCOMPARE(band->rect(), QRectF(-6, -1.5, 12, 0.1));
    QCOMPARE(band->brush(), QBrush(Qt::red));
    QVERIFY(band->pen().isCosmetic());
    QCOMPARE(band->pen().color(), QColor(Qt::blue));
    QCOMPARE(band->pen().widthF(), 2.0);
    QCOMPARE(band->zValue(), 4.0);
    ruler.setColor(Qt::green);
    ruler.setHeight(20);
    bench.update(ruler);
    QCOMPARE(bench.items<QGraphicsRectItem>(), {const_cast<QGraphicsRectItem *>(band)});
    QCOMPARE(band->rect(), QRectF(-6, -1.5, 12, 0.2));
    QCOMPARE(band->brush(), QBrush(Qt::red));
}

void TestCurveDecorators::rulerTellsOfTheMouse()
{
    Bench bench;
    QVERIFY(bench.isReady());
    ZelGridRulerDecorator ruler;
    bench.add(ruler);
    QSignalSpy clicked(&ruler, &ZelGridRulerDecorator::clicked);
    QSignalSpy moved(&ruler, &ZelGridRulerDecorator::moved);
    QSignalSpy released(&ruler, &ZelGridRulerDecorator::released);
    QWidget *area = bench.view.viewport();
    UserInput::press(area, {220, 285}); // above the band
    UserInput::release(area, {220, 285});
    UserInput::press(area, {220, 295}, {}, Qt::RightButton);
    UserInput::release(area, {220, 295}, {}, Qt::RightButton);
    QCOMPARE(clicked.size(), 0);
    UserInput::press(area, {220, 295});
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
    UserInput::move(area, {-40, 10});
    UserInput::release(area, {-40, 10});
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(clicked, {QVariantList{0.5F}});
    QCOMPARE(moved, {QVariantList{-6.0F}});
    QCOMPARE(released.size(), 1);
}

void TestCurveDecorators::markerIsCutInTwo_data()
{
    QTest::addColumn<Side>("side");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::newRow("bottom") << Side::Bottom << -10.0 << 10.0;
    QTest::newRow("left") << Side::Left << -10.0 << 0.0;
    QTest::newRow("right") << Side::Right << 0.0 << 10.0;
}

void TestCurveDecorators::markerIsCutInTwo()
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

void TestCurveDecorators::markerPartsStackApart()
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

void TestCurveDecorators::markerIsDragged()
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

void TestCurveDecorators::markerShowsThatTheMouseIsThere()
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

void TestCurveDecorators::markerSurvivesAClearedScene()
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

void TestCurveDecorators::markerStatesAreGuarded()
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

void TestCurveDecorators::itemsEndWithTheSceneOrTheDecorator()
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

void TestCurveDecorators::decoratorsMayEndInTheirSignals()
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

ZEL_TEST_MAIN(TestCurveDecorators)
#include "tst_curve_decorators.moc"
