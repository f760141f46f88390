// The old curve view: its transform, selecting and dragging vertices, what its decorators draw.

#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelCurveView>
#include <ZelWidgets/ZelFrameDecorator>
#include <ZelWidgets/ZelGridDecorator>
#include <ZelWidgets/ZelLineDecorator>

#include <QPainter>
#include <QSignalSpy>

namespace {

constexpr QSize size(200, 100);
const double infinity = qInf();
const double notANumber = qQNaN();

void fill(ZelBezierCurveModel &model)
{
    model.setVertices({{QPointF(0.1, 0.5)}, {QPointF(0.5, 0.5)}, {QPointF(0.9, 0.5)}});
}

/// A model that answers anything.
class WildModel : public ZelBezierCurveModel
{
public:
    QList<QPointF> points;

    QPainterPath path(QRectF) const override { return {}; }
    int vertexCount() const override { return int(points.size()); }
    QVariant vertexData(int index, ZelVertexData) const override { return points.value(index); }
};

/// How many columns, and rows, a decorator paints from end to end in an area that fills 100 pixels.
QSize linesOf(ZelCurveViewDecorator &decorator, const QRectF &area)
{
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    decorator.paint(painter, area, ZelCurveView::viewToWidget(image.size(), area, false));
    painter.end();
    QSize lines(0, 0);
    for (int i = 0; i < 100; ++i) {
        bool isColumn = true;
        bool isRow = true;
        for (int j = 1; j < 99; ++j) {
            isColumn = isColumn && image.pixel(i, j) != qRgb(255, 255, 255);
            isRow = isRow && image.pixel(j, i) != qRgb(255, 255, 255);
        }
        lines += QSize(isColumn, isRow);
    }
    return lines;
}

} // namespace

class OldCurveViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void transformPutsTheCentreInTheMiddle()
    {
        const QTransform both = ZelCurveView::viewToWidget(size, QRectF(0, 0, 1, 1), false);
        QCOMPARE(both.map(QPointF(0, 0)), QPointF(0, 100));
        QCOMPARE(both.map(QPointF(1, 1)), QPointF(200, 0));
        const QTransform even = ZelCurveView::viewToWidget(size, QRectF(0, 0, 1, 1), true);
        QCOMPARE(even.map(QPointF(0, 0)), QPointF(50, 100));
        QCOMPARE(even.m11(), -even.m22());
        for (const QRectF &bad : {QRectF(), QRectF(0, 0, -1, 1), QRectF(0, 0, notANumber, 1),
                                  QRectF(0, 0, 1, infinity)})
            QVERIFY(ZelCurveView::viewToWidget(size, bad, false).isIdentity());
        QVERIFY(ZelCurveView::viewToWidget(QSize(), QRectF(0, 0, 1, 1), false).isIdentity());
    }

    void clicksSelectAndDragsMove()
    {
        ZelBezierCurveModel first;
        ZelBezierCurveModel second;
        fill(first);
        fill(second);
        ZelCurveView view;
        view.resize(size);
        view.addCurve(&second);
        view.addCurve(&first);
        view.addCurve(&first);
        view.addCurve(nullptr);
        QSignalSpy selected(&view, &ZelCurveView::selectionChanged);
        // Three pixels off, at both curves alike: the one that was added first is meant.
        UserInput::press(&view, QPoint(102, 51));
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.last().first().value<ZelVertexIndex>(), ZelVertexIndex(&second, 1));
        UserInput::move(&view, QPoint(122, 31));
        QCOMPARE(second.vertices().at(1).position, QPointF(0.6, 0.7));
        QCOMPARE(first.vertices().at(1).position, QPointF(0.5, 0.5));
        UserInput::move(&view, QPoint(102, 51), {}, Qt::NoButton);
        QCOMPARE(second.vertices().at(1).position, QPointF(0.6, 0.7));
        UserInput::press(&view, QPoint(120, 30));
        QCOMPARE(selected.size(), 1);
        UserInput::press(&view, QPoint(124, 30));
        QCOMPARE(selected.size(), 2);
        QVERIFY(!selected.last().first().value<ZelVertexIndex>().isValid());
        view.setVertexSize(5);
        view.setVertexSize(0.5);
        UserInput::press(&view, QPoint(124, 30));
        QCOMPARE(selected.size(), 3);
        view.clearCurves();
        QVERIFY(!selected.last().first().value<ZelVertexIndex>().isValid());
        UserInput::press(&view, QPoint(120, 30));
        QCOMPARE(selected.size(), 4);
    }

    void selectionStaysWithItsVertex()
    {
        auto model = std::make_unique<ZelBezierCurveModel>();
        fill(*model);
        ZelCurveView view;
        view.resize(size);
        view.addCurve(model.get());
        UserInput::press(&view, QPoint(100, 50));
        QSignalSpy selected(&view, &ZelCurveView::selectionChanged);
        const auto now = [&selected] {
            return selected.last().first().value<ZelVertexIndex>();
        };
        model->addVertex(0.2F);
        QCOMPARE(now(), ZelVertexIndex(model.get(), 2));
        model->removeVertex(0);
        QCOMPARE(now(), ZelVertexIndex(model.get(), 1));
        model->addVertex(0.7F);
        QCOMPARE(selected.size(), 2);
        model->removeVertex(1);
        QCOMPARE(selected.size(), 3);
        QVERIFY(!now().isValid());
        UserInput::press(&view, QPoint(180, 50));
        QCOMPARE(selected.size(), 4);
        model.reset();
        QCOMPARE(selected.size(), 5);
        QVERIFY(!now().isValid());
        view.grab();
    }

    void removedCurvesAreHeardNoMore()
    {
        ZelBezierCurveModel model;
        fill(model);
        ZelCurveView view;
        view.resize(size);
        view.addCurve(&model);
        UserInput::press(&view, QPoint(100, 50));
        QSignalSpy selected(&view, &ZelCurveView::selectionChanged);
        view.removeCurve(nullptr);
        view.setCurvePen(nullptr, QPen());
        view.removeCurve(&model);
        QCOMPARE(selected.size(), 1);
        model.removeVertex(1);
        UserInput::press(&view, QPoint(20, 50));
        QCOMPARE(selected.size(), 1);
    }

    void paintsCurvesGreyWhenDisabled()
    {
        ZelBezierCurveModel model;
        fill(model);
        ZelCurveView view;
        view.resize(size);
        view.addCurve(&model);
        view.setCurvePen(&model, QPen(Qt::red, 3));
        const auto colorAt = [&view](QPoint point) {
            return view.grab().toImage().pixelColor(point);
        };
        QCOMPARE(colorAt(QPoint(60, 50)), QColor(Qt::red));
        view.setEnabled(false);
        const QColor disabled = colorAt(QPoint(60, 50));
        QVERIFY(disabled.saturation() < 10);
        view.setEnabled(true);
        view.setVertexSize(20);
        QVERIFY(colorAt(QPoint(100, 46)) != QColor(Qt::red));
        UserInput::press(&view, QPoint(100, 50));
        QCOMPARE(colorAt(QPoint(100, 46)), QColor(Qt::red));
        view.setView(QRectF(10, 10, 1, 1));
        QVERIFY(colorAt(QPoint(60, 50)) != QColor(Qt::red));
    }

    void standsHostileCoordinates()
    {
        WildModel model;
        model.points = {QPointF(notANumber, 0), QPointF(infinity, infinity), QPointF(1e30, -1e30)};
        ZelCurveView view;
        view.resize(size);
        view.addCurve(&model);
        ZelGridDecorator grid(1e-300, 1e-300);
        view.addDecorator(&grid);
        view.addDecorator(nullptr);
        for (const QRectF &area :
             {QRectF(0, 0, 1e300, 1e300), QRectF(notANumber, 0, 1, 1), QRectF()}) {
            view.setView(area);
            view.grab();
            UserInput::drag(&view, QPoint(10, 10), QPoint(50, 50));
        }
    }

    void decoratorsDrawLines()
    {
        const QRectF area(0.5, 0.5, 10, 10);
        ZelGridDecorator grid(2, 0);
        QCOMPARE(linesOf(grid, area), QSize(5, 0));
        grid.setGrid(-1, 5);
        QCOMPARE(linesOf(grid, area), QSize(0, 2));
        grid.setRoundToDecades(true);
        QCOMPARE(linesOf(grid, area), QSize(10, 10));
        QCOMPARE(linesOf(grid, QRectF(0.5, 0.5, 40, 4)), QSize(4, 4));
        grid.setRoundToDecades(false);
        grid.setGrid(1e-6, 1e-6);
        QCOMPARE(linesOf(grid, area), QSize(0, 0));
        ZelLineDecorator line;
        QCOMPARE(linesOf(line, area), QSize(0, 0));
        line.setPosition(3);
        QCOMPARE(linesOf(line, area), QSize(1, 0));
        ZelFrameDecorator frame;
        QCOMPARE(linesOf(frame, area), QSize(2, 2));
    }

    void indexesNameVertices()
    {
        auto model = std::make_unique<ZelBezierCurveModel>();
        fill(*model);
        const ZelVertexIndex index(model.get(), 2);
        index.setData(ZelVertexData::Position, QPointF(0.8, 0.1));
        QCOMPARE(index.data(ZelVertexData::Position).toPointF(), QPointF(0.8, 0.1));
        QVERIFY(!ZelVertexIndex(model.get(), 7).data(ZelVertexData::Position).isValid());
        QVERIFY(!ZelVertexIndex(model.get(), -1).isValid());
        QCOMPARE(QDebug::toString(ZelVertexIndex()), QStringLiteral("ZelVertexIndex(0x0, -1)"));
        model.reset();
        QVERIFY(!index.isValid());
        QVERIFY(!index.data(ZelVertexData::Position).isValid());
    }
};

ZEL_TEST_MAIN(OldCurveViewTest)
#include "tst_old_curve_view.moc"
