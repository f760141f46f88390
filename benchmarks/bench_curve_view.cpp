// The curve view at 1,200 x 800, beside plain items of the same look in a QGraphicsView. First
// argument: number of vertices, each with both tangents.
//
// "move": one vertex is moved in the model, to the picture painted. "zoom", "pan": a step of the
// view with every decorator, to the picture painted. "time marker": a sixtieth of a second.
// "decorators": what the decorators alone take of such a step, items updated but nothing painted;
// beside it the texts of the labels as plain items that are made anew.

#include "BenchmarkRun.h"
#include "CurveLook.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelCurveView2>
#include <ZelWidgets/ZelFrameDecorator2>
#include <ZelWidgets/ZelGridDecorator2>
#include <ZelWidgets/ZelGridLabelDecorator>
#include <ZelWidgets/ZelGridPositioning>
#include <ZelWidgets/ZelGridRulerDecorator>
#include <ZelWidgets/ZelTimeMarkerDecorator>
#include <ZelWidgets/ZelVLineDecorator2>

#include <QApplication>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr QSize viewSize(1200, 800);
constexpr double seconds = 20;

QList<ZelBezierCurveModel::Vertex> vertices(int count)
{
    QList<ZelBezierCurveModel::Vertex> vertices;
    const double step = seconds / count;
    for (int i = 0; i < count; ++i) {
        const QPointF place(i * step, 4 * std::sin(i * 0.37));
        const QPointF tangent(0.3 * step, 0.3);
        vertices.append({place, place - tangent, place + tangent});
    }
    return vertices;
}

ZelCurveView2Style look()
{
    ZelCurveView2Style style = curveLook();
    style.navigable = true;
    return style;
}

/// Counts how often a widget was painted.
class Paints : public QObject
{
public:
    explicit Paints(QWidget *widget)
        : widget_(widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        paints_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    /// What is due, until the picture shows it.
    void finish()
    {
        for (const int before = paints_; paints_ == before;)
            QCoreApplication::processEvents();
    }
    void settle()
    {
        widget_->update();
        finish();
        QCoreApplication::processEvents();
    }

private:
    QWidget *widget_;
    int paints_ = 0;
};

std::unique_ptr<ZelGridPositioning> spacing(unsigned int pixels)
{
    auto positioning = std::make_unique<ZelGridResizingPositioning>();
    positioning->setMinSceneWidth(0.1);
    positioning->setMinSceneHeight(0.1);
    positioning->setMinPixelWidth(pixels);
    positioning->setMinPixelHeight(pixels);
    return positioning;
}

std::unique_ptr<ZelGridLabelDecorator> labels()
{
    auto decorator = std::make_unique<ZelGridLabelDecorator>();
    decorator->setPositioning(spacing(60));
    decorator->setLabelColor(Qt::white);
    return decorator;
}

/// Adds one of each and gives the time marker.
ZelTimeMarkerDecorator *addDecorators(ZelCurveView2 &view)
{
    auto grid = std::make_unique<ZelGridDecorator2>();
    grid->setPositioning(spacing(20));
    grid->setPen(QPen(Qt::gray, 1));
    view.addDecoratorToBackground(grid.release());
    view.addDecoratorToBackground(std::make_unique<ZelAxisDecorator>().release());
    view.addDecoratorToBackground(labels().release());
    auto ruler = std::make_unique<ZelGridRulerDecorator>();
    ruler->setColor(Qt::black);
    view.addDecoratorToBackground(ruler.release());
    view.addDecoratorToForeground(std::make_unique<ZelFrameDecorator2>().release());
    auto line = std::make_unique<ZelVLineDecorator2>();
    line->setPosition(seconds / 3);
    view.addDecoratorToForeground(line.release());
    auto marker =
        std::make_unique<ZelTimeMarkerDecorator>(ZelTimeMarkerDecorator::TrianglePosition::Bottom);
    marker->setPen(QPen(Qt::red, 1));
    marker->setPosition(seconds / 2);
    ZelTimeMarkerDecorator *added = marker.release();
    view.addDecoratorToForeground(added);
    return added;
}

/// The curve view on a model.
struct Ours
{
    explicit Ours(int count, bool isDecorated)
    {
        const ZelCurveView2Style style = look();
        model.setVertices(vertices(count));
        view.setStyle(&style);
        view.addCurve(&model);
        if (isDecorated)
            marker = addDecorators(view);
        view.resize(viewSize);
        view.show();
        paints = std::make_unique<Paints>(view.findChild<QGraphicsView *>()->viewport());
        paints->settle();
    }
    void setArea(const QRectF &area) { view.setVisibleArea(area); }
    void move(int i, QPointF place)
    {
        model.vertexHandle(i).setData(ZelVertexData::Position, place);
    }

    ZelBezierCurveModel model;
    ZelCurveView2 view{nullptr};
    ZelTimeMarkerDecorator *marker = nullptr;
    std::unique_ptr<Paints> paints;
};

/// The same picture of the same model by items of Qt, without decorators.
struct Plain
{
    explicit Plain(int count, bool)
    {
        model.setVertices(vertices(count));
        scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        scene.setBackgroundBrush(Qt::darkGray);
        QPen pen(Qt::white, 1);
        pen.setCosmetic(true);
        curve = scene.addPath(model.path({}), pen);
        const QList<ZelBezierCurveModel::Vertex> all = model.vertices();
        for (const ZelBezierCurveModel::Vertex &vertex : all) {
            addLine(vertex.position, *vertex.inTangent);
            addLine(vertex.position, *vertex.outTangent);
            addMarker(*vertex.inTangent, 5, Qt::yellow);
            addMarker(*vertex.outTangent, 5, Qt::yellow);
            markers.push_back(addMarker(vertex.position, 7, Qt::red));
        }
        view.setScene(&scene);
        view.setRenderHint(QPainter::Antialiasing);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scene.setSceneRect(-1000, -1000, 2000, 2000);
        view.resize(viewSize);
        view.show();
        setArea(model.boundingRect());
        paints = std::make_unique<Paints>(view.viewport());
        paints->settle();
    }
    void setArea(const QRectF &area)
    {
        view.setTransform(QTransform::fromScale(viewSize.width() / area.width(),
                                                -viewSize.height() / area.height()));
        view.centerOn(area.center());
    }
    void move(int i, QPointF place)
    {
        model.vertexHandle(i).setData(ZelVertexData::Position, place);
        curve->setPath(model.path({}));
        markers[size_t(i)]->setPos(place);
    }
    void addLine(QPointF from, QPointF to)
    {
        QPen pen(Qt::lightGray, 1);
        pen.setCosmetic(true);
        scene.addLine({from, to}, pen);
    }
    QGraphicsItem *addMarker(QPointF place, double radius, const QColor &fill)
    {
        auto *marker =
            scene.addEllipse(-radius, -radius, 2 * radius, 2 * radius, QPen(Qt::black, 1), fill);
        marker->setFlags(QGraphicsItem::ItemIgnoresTransformations |
                         QGraphicsItem::ItemIsSelectable);
        marker->setPos(place);
        return marker;
    }

    ZelBezierCurveModel model;
    QGraphicsScene scene;
    QGraphicsView view;
    QGraphicsPathItem *curve = nullptr;
    std::vector<QGraphicsItem *> markers;
    std::unique_ptr<Paints> paints;
};

template <typename View>
void moveOne(benchmark::State &state)
{
    View view(int(state.range(0)), false);
    const int middle = int(state.range(0)) / 2;
    const QPointF place = view.model.vertices().at(middle).position;
    double rise = 0;
    for (auto _ : state) {
        rise = rise > 0 ? 0 : 0.5;
        view.move(middle, place + QPointF(0, rise));
        view.paints->finish();
    }
}

template <typename View>
void zoom(benchmark::State &state)
{
    View view(int(state.range(0)), true);
    const QRectF all = view.model.boundingRect();
    int step = 0;
    for (auto _ : state) {
        const double air = all.width() * 0.02 * (++step % 10);
        view.setArea(all.adjusted(-air, -air, air, air));
        view.paints->finish();
    }
}

template <typename View>
void pan(benchmark::State &state)
{
    View view(int(state.range(0)), true);
    const QRectF all = view.model.boundingRect();
    int step = 0;
    for (auto _ : state) {
        const double way = all.width() * 0.01 * (++step % 10);
        view.setArea(all.translated(way, way / 2));
        view.paints->finish();
    }
}

void runMarker(benchmark::State &state)
{
    Ours view(int(state.range(0)), true);
    double time = 0;
    for (auto _ : state) {
        time = time < seconds ? time + 1.0 / 60 : 0;
        view.marker->setPosition(time);
        view.paints->finish();
    }
}

const QTransform toPixels = QTransform::fromScale(60, -80);
const QRectF shown(0, -5, 20, 10);

void labelsOurs(benchmark::State &state)
{
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    const auto decorator = labels();
    decorator->setScene(&scene);
    for (auto _ : state)
        decorator->updateItems(shown, toPixels);
    state.counters["labels"] = double(scene.items().size());
}

void labelsPlain(benchmark::State &state)
{
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    const auto [xs, ys] = spacing(60)->linePositions(shown, toPixels);
    std::vector<float> all = xs;
    all.insert(all.end(), ys.begin(), ys.end());
    for (auto _ : state) {
        scene.clear();
        for (const float position : all) {
            auto *label = scene.addSimpleText(QString::number(double(position), 'g', 3));
            label->setFlag(QGraphicsItem::ItemIgnoresTransformations);
            label->setPos(double(position) - label->boundingRect().width() / 2, 0);
        }
    }
}

void markerUpdate(benchmark::State &state)
{
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    ZelTimeMarkerDecorator marker(ZelTimeMarkerDecorator::TrianglePosition::Bottom);
    marker.setScene(&scene);
    for (auto _ : state)
        marker.updateItems(shown, toPixels);
}

BENCHMARK(moveOne<Ours>)->Name("move/ours")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(moveOne<Plain>)->Name("move/plain")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(zoom<Ours>)->Name("zoom/ours")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(zoom<Plain>)->Name("zoom/plain")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(pan<Ours>)
    ->Name("pan/ours")
    ->Arg(2)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(pan<Plain>)
    ->Name("pan/plain")
    ->Arg(2)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(runMarker)
    ->Name("time marker/ours")
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(labelsOurs)->Name("decorators/labels")->Unit(benchmark::kMicrosecond);
BENCHMARK(labelsPlain)->Name("decorators/labels plain")->Unit(benchmark::kMicrosecond);
BENCHMARK(markerUpdate)->Name("decorators/time marker")->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv);
}
