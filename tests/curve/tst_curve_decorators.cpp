#include "DecoratorAssertions.h"
#include "DecoratorBench.h"
#include "UserInput.h"

#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelFrameDecorator2>
#include <ZelWidgets/ZelGridDecorator2>
#include <ZelWidgets/ZelGridLabelDecorator>
#include <ZelWidgets/ZelGridPositioning>
#include <ZelWidgets/ZelGridRulerDecorator>
#include <ZelWidgets/ZelVLineDecorator2>

#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>

#include <cmath>

namespace {

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

ZEL_TEST_MAIN(TestCurveDecorators)
#include "tst_curve_decorators.moc"
