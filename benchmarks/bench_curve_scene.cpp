// Curves of 1,000 and 10,000 vertices, each with both tangents, beside plain items for the same
// picture: anchors with markers as path items, and lines. First argument: number of vertices.
//
// One vertex moved: what the model does for itself (its path and bounds), the same with the scene
// behind it, and with the picture at 1,200 x 800 painted anew. All vertices moved at once. One
// vertex added and removed. Memory of a vertex (counter, bytes; its allocation overhead included).

#include "BenchmarkRun.h"
#include "CurveLook.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelCurveScene>

#include <QApplication>
#include <QFontMetricsF>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QPainter>

#include <malloc.h>

#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr QSize viewSize(1200, 800);
constexpr double reach = 0.3;

QPointF placeOf(int i)
{
    return {double(i), std::sin(i * 0.37)};
}

QPointF inOf(QPointF place)
{
    return place - QPointF(reach, 0.1);
}

QPointF outOf(QPointF place)
{
    return place + QPointF(reach, 0.1);
}

QList<ZelBezierCurveModel::Vertex> vertices(int count)
{
    QList<ZelBezierCurveModel::Vertex> vertices;
    for (int i = 0; i < count; ++i)
        vertices.append({placeOf(i), inOf(placeOf(i)), outOf(placeOf(i))});
    return vertices;
}

/// Moves all of its vertices with one signal.
class WaveModel : public ZelCurveModel
{
public:
    explicit WaveModel(int count)
        : count_(count)
    {}

    void shift()
    {
        shift_ = shift_ == 0.0 ? 0.5 : 0.0;
        Q_EMIT changed();
    }
    QPainterPath path(QRectF) const override { return {}; }
    QRectF boundingRect() const override { return {0, -2, double(count_), 4}; }
    void addVertex(float) override {}
    int vertexCount() const override { return count_; }
    QVariant vertexData(int index, ZelVertexData key) const override
    {
        const QPointF place(index, shift_);
        return key == ZelVertexData::Position    ? place
               : key == ZelVertexData::InTangent ? inOf(place)
                                                 : outOf(place);
    }
    void setVertexData(int, ZelVertexData, const QVariant &, const ViewTransform *) override {}
    void removeVertex(int) override {}

private:
    int count_;
    double shift_ = 0;
};

/// The curve in the library's scene.
struct Ours
{
    explicit Ours(int count)
        : style(curveLook())
    {
        scene.setStyle(&style);
        scene.onStyleUpdated();
        model.setVertices(vertices(count));
        scene.addCurve(&model);
    }

    ZelCurveView2Style style;
    ZelBezierCurveModel model;
    ZelCurveScene scene{nullptr};
};

/// An item with the position of a point and no picture.
class Holder : public QGraphicsItem
{
public:
    Holder() { setFlag(ItemHasNoContents); }
    QRectF boundingRect() const override { return {}; }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
};

/// The same picture of plain items.
struct Plain
{
    struct Vertex
    {
        std::array<QGraphicsItem *, 3> holders;
        std::array<QGraphicsLineItem *, 2> lines;
    };

    explicit Plain(int count)
        : style(curveLook())
    {
        scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        model.setVertices(vertices(count));
        line = scene.addPath(model.path(QRectF()), cosmetic(style.defaultCurveColor, 1));
        const double height = QFontMetricsF(QApplication::font()).height();
        for (int i = 0; i < count; ++i) {
            Vertex vertex;
            for (QGraphicsLineItem *&tangent : vertex.lines) {
                tangent = scene.addLine(QLineF(), cosmetic(style.tangentLineColor, 0.1 * height));
                tangent->setZValue(1);
            }
            for (size_t k = 0; k < 3; ++k)
                vertex.holders[k] = holder(k == 0, height);
            all.push_back(vertex);
            move(i, placeOf(i));
        }
    }

    static QPen cosmetic(const QColor &color, double width)
    {
        QPen pen(color, width);
        pen.setCosmetic(true);
        return pen;
    }

    QGraphicsItem *holder(bool isVertex, double height)
    {
        auto *holder = new Holder;
        scene.addItem(holder);
        holder->setZValue(2);
        const double size = height * (isVertex ? 0.65 : 0.45);
        QPainterPath path;
        if (isVertex)
            path.addEllipse(QRectF(-size / 2, -size / 2, size, size));
        else
            path.addRect(QRectF(-size / 2, -size / 2, size, size));
        auto *marker = new QGraphicsPathItem(path, holder);
        marker->setPen(QPen(Qt::black, height * 0.1));
        marker->setBrush(isVertex ? Qt::red : Qt::yellow);
        marker->setFlags(QGraphicsItem::ItemIgnoresTransformations |
                         QGraphicsItem::ItemIsSelectable);
        return holder;
    }

    void move(int index, QPointF place)
    {
        Vertex &vertex = all[size_t(index)];
        vertex.holders[0]->setPos(place);
        vertex.holders[1]->setPos(inOf(place));
        vertex.holders[2]->setPos(outOf(place));
        vertex.lines[0]->setLine(QLineF(place, inOf(place)));
        vertex.lines[1]->setLine(QLineF(place, outOf(place)));
    }

    ZelCurveView2Style style;
    ZelBezierCurveModel model;
    QGraphicsScene scene;
    QGraphicsPathItem *line;
    std::vector<Vertex> all;
};

/// A shown view of the whole curve.
struct Shown
{
    Shown(QGraphicsScene *scene, int count)
        : view(scene)
    {
        view.setRenderHint(QPainter::Antialiasing);
        view.setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
        view.setFrameStyle(0);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.resize(viewSize);
        view.scale(viewSize.width() / double(count), -viewSize.height() / 3.0);
        view.centerOn(count / 2.0, 0);
        view.show();
        QCoreApplication::processEvents();
    }

    void paint() { view.viewport()->repaint(); }

    QGraphicsView view;
};

/// Lets one vertex in the middle go to and fro.
class Step
{
public:
    explicit Step(int count)
        : index(count / 2)
    {}

    QPointF next()
    {
        up_ = !up_;
        return placeOf(index) + QPointF(0, up_ ? 0.5 : 0.0);
    }
    void move(ZelBezierCurveModel &model)
    {
        model.setVertexData(index, ZelVertexData::Position, next());
    }

    const int index;

private:
    bool up_ = false;
};

void oneMovedModelAlone(benchmark::State &state)
{
    const int count = int(state.range(0));
    ZelBezierCurveModel model;
    model.setVertices(vertices(count));
    Step step(count);
    for (auto _ : state) {
        step.move(model);
        benchmark::DoNotOptimize(model.path(QRectF()));
        benchmark::DoNotOptimize(model.boundingRect());
    }
}

void oneMovedOurs(benchmark::State &state)
{
    const int count = int(state.range(0));
    Ours ours(count);
    QCoreApplication::processEvents();
    Step step(count);
    for (auto _ : state)
        step.move(ours.model);
}

/// Every item told its place again, as in a scene that doesn't look at what changed.
void oneMovedPlain(benchmark::State &state)
{
    const int count = int(state.range(0));
    Plain plain(count);
    Step step(count);
    for (auto _ : state) {
        step.move(plain.model);
        plain.line->setPath(plain.model.path(QRectF()));
        benchmark::DoNotOptimize(plain.model.boundingRect());
        for (int i = 0; i < count; ++i) {
            const QPointF place = plain.model.vertexData(i, ZelVertexData::Position).toPointF();
            plain.move(i, place);
        }
    }
}

void oneMovedAndPaintedOurs(benchmark::State &state)
{
    const int count = int(state.range(0));
    Ours ours(count);
    Shown shown(&ours.scene, count);
    Step step(count);
    for (auto _ : state) {
        step.move(ours.model);
        shown.paint();
    }
}

void oneMovedAndPaintedPlain(benchmark::State &state)
{
    const int count = int(state.range(0));
    Plain plain(count);
    Shown shown(&plain.scene, count);
    Step step(count);
    for (auto _ : state) {
        step.move(plain.model);
        plain.line->setPath(plain.model.path(QRectF()));
        plain.move(step.index, step.next());
        shown.paint();
    }
}

void allMovedOurs(benchmark::State &state)
{
    ZelCurveView2Style style = curveLook();
    WaveModel model(int(state.range(0)));
    ZelCurveScene scene(nullptr);
    scene.setStyle(&style);
    scene.addCurve(&model);
    QCoreApplication::processEvents();
    for (auto _ : state)
        model.shift();
}

void allMovedPlain(benchmark::State &state)
{
    const int count = int(state.range(0));
    Plain plain(count);
    QCoreApplication::processEvents();
    double shift = 0;
    for (auto _ : state) {
        shift = 0.5 - shift;
        for (int i = 0; i < count; ++i)
            plain.move(i, QPointF(i, shift));
    }
}

void addAndRemoveModelAlone(benchmark::State &state)
{
    const int count = int(state.range(0));
    ZelBezierCurveModel model;
    model.setVertices(vertices(count));
    for (auto _ : state) {
        model.addVertex(float(count / 2) + 0.5F);
        benchmark::DoNotOptimize(model.path(QRectF()));
        benchmark::DoNotOptimize(model.boundingRect());
        model.removeVertex(count / 2 + 1);
        benchmark::DoNotOptimize(model.path(QRectF()));
        benchmark::DoNotOptimize(model.boundingRect());
    }
}

void addAndRemoveOurs(benchmark::State &state)
{
    const int count = int(state.range(0));
    Ours ours(count);
    for (auto _ : state) {
        ours.model.addVertex(float(count / 2) + 0.5F);
        ours.model.removeVertex(count / 2 + 1);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

template <typename Curve>
void makeAndMemory(benchmark::State &state)
{
    const int count = int(state.range(0));
    for (auto _ : state) {
        const size_t before = mallinfo2().uordblks;
        auto curve = std::make_unique<Curve>(count);
        benchmark::DoNotOptimize(curve.get());
        state.counters["bytes_a_vertex"] = double(mallinfo2().uordblks - before) / count;
        state.PauseTiming();
        curve.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}

#define ZEL_BENCH(name) BENCHMARK(name)->Arg(1000)->Arg(10'000)->Unit(benchmark::kMicrosecond)
ZEL_BENCH(oneMovedModelAlone);
ZEL_BENCH(oneMovedOurs);
ZEL_BENCH(oneMovedPlain);
ZEL_BENCH(oneMovedAndPaintedOurs);
ZEL_BENCH(oneMovedAndPaintedPlain);
ZEL_BENCH(allMovedOurs);
ZEL_BENCH(allMovedPlain);
ZEL_BENCH(addAndRemoveModelAlone);
ZEL_BENCH(addAndRemoveOurs);
ZEL_BENCH(makeAndMemory<Ours>);
ZEL_BENCH(makeAndMemory<Plain>);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv);
}
