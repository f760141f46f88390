// The scene of curves: items that follow their models, and models that don't behave.

#include "CurveSceneTestCase.h"

#include <QGraphicsView>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <array>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Opens the scene's private operations to what no caller can provoke.
template <auto member>
struct Opened
{
    friend auto updateCurveOfScene() { return member; }
};
auto updateCurveOfScene();
template struct Opened<&ZelCurveScene::updateCurve>;

/// A model that answers whatever it was told to.
class AnyModel : public ZelCurveModel
{
public:
    QPainterPath path(QRectF) const override { return shape; }
    QRectF boundingRect() const override { return bounds; }
    void addVertex(float x) override { added.append(x); }
    int vertexCount() const override { return int(points.size()); }
    QVariant vertexData(int index, ZelVertexData key) const override
    {
        return points[index].value(key);
    }
    void setVertexData(int, ZelVertexData, const QVariant &, const ViewTransform *) override {}
    void removeVertex(int) override {}

    QPainterPath shape;
    QRectF bounds;
    QList<float> added;
    QList<QHash<ZelVertexData, QVariant>> points;
};

} // namespace

class CurveSceneTest : public CurveSceneTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itemsFollowTheModel();
    void gapsAreConnectedByDots();
    void sceneGrowsAroundItsCurves();
    void hardResetsRebuildAndRemovedModelsAreForgotten();
    void deadModelsLeaveNothingBehind();
    void strangeModelsAreShownAsFarAsPossible();
    void listenersMayChangeTheModelAtAnyTime();
    void softAssertionsTellAndChangeNothing();
    void aRandomWalkKeepsItemsAndModelsInStep();

private:
    void step(QRandomGenerator &random, ZelBezierCurveModel &model);
};

void CurveSceneTest::itemsFollowTheModel()
{
    ZelBezierCurveModel first;
    ZelBezierCurveModel second;
    first.setVertices(hill());
    scene_->addCurve(&first);
    scene_->addCurve(&second);
    checkStep({&first, &second});
    second.setVertices(hill());
    Marker *kept = marker(first, 2);
    first.addVertex(1.75F);
    QCOMPARE(marker(first, 3), kept);
    marker(second, 0)->setPosition(QPointF(-1, 4));
    QCOMPARE(second.vertices().first().position, QPointF(-1, 4));
    QCOMPARE(marker(second, 0)->position(), QPointF(-1, 4));
    second.vertexHandle(2).remove();
    flush();
    checkStep({&first, &second});
    const LineItem *line = itemsOf<LineItem>().first();
    QCOMPARE(line->zValue(), 1.0);
    QCOMPARE(marker(first, 0)->parentItem()->zValue(), 1.1);
    QCOMPARE(marker(first, 0, in)->parentItem()->zValue(), 1.2);
    scene_->clearCurves();
    flush();
    QVERIFY(scene_->items().isEmpty());
}

void CurveSceneTest::gapsAreConnectedByDots()
{
    AnyModel model;
    model.shape.moveTo(0, 0);
    scene_->addCurve(&model);
    QCOMPARE(itemsOf<PathItem>().size(), 1);
    model.shape.lineTo(1, 1);
    model.shape.moveTo(1 + 1e-14, 1);
    model.shape.lineTo(2, 0);
    model.shape.moveTo(3, 1);
    model.shape.lineTo(4, 1);
    style_->curveWidths[&model] = 2.9F;
    style_->curveColors[&model] = Qt::red;
    Q_EMIT model.changed();
    const QList<PathItem *> items = itemsOf<PathItem>();
    QCOMPARE(items.size(), 2);
    const PathItem *gap = items[0]->pen().style() == Qt::DotLine ? items[0] : items[1];
    QPainterPath expected(QPointF(2, 0));
    expected.lineTo(3, 1);
    QCOMPARE(gap->path(), expected);
    QVERIFY(gap->pen().isCosmetic());
    QCOMPARE(gap->pen().widthF(), 2.0);
    QCOMPARE(gap->pen().color(), QColor(Qt::red));
    // The gaps keep their pen until they are made anew.
    style_->curveColors[&model] = Qt::blue;
    scene_->onStyleUpdated();
    QCOMPARE(gap->pen().color(), QColor(Qt::red));
    Q_EMIT model.changed();
    for (const PathItem *item : itemsOf<PathItem>())
        QCOMPARE(item->pen().color(), QColor(Qt::blue));
    model.shape = QPainterPath();
    Q_EMIT model.changed();
    QCOMPARE(itemsOf<PathItem>().size(), 1);
}

void CurveSceneTest::sceneGrowsAroundItsCurves()
{
    AnyModel flat;
    flat.bounds = QRectF(1, 3, 4, 0);
    scene_->addCurve(&flat);
    QCOMPARE(scene_->sceneRect(), QRectF(QPointF(-0.2F, 3.5 - 25), QPointF(103, 3.5 + 25)));
    style_->sceneLeftLimit = -1000;
    AnyModel other;
    other.bounds = QRectF(0, 0, 1, 1);
    scene_->addCurve(&other);
    const QRectF large(QPointF(2.5 - 125, 2 - 100), QSizeF(250, 200));
    QCOMPARE(scene_->sceneRect(), large);
    QCOMPARE(scene_->curvesBoundingRect(), QRectF(0, 0, 5, 3));
    scene_->removeCurve(&flat);
    QCOMPARE(scene_->curvesBoundingRect(), other.bounds);
    scene_->clearCurves();
    QCOMPARE(scene_->sceneRect(), large);
    // A model that was removed is still heard.
    flat.bounds = QRectF(0, 0, 1, 1);
    Q_EMIT flat.changed();
    QCOMPARE(scene_->sceneRect(), large);
}

void CurveSceneTest::hardResetsRebuildAndRemovedModelsAreForgotten()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    marker(model, 1)->setSelected(true);
    QSignalSpy spy(scene_.get(), qOverload<ZelVertexHandle>(&ZelCurveScene::selectionChanged));
    model.setVertices({{QPointF(5, 5)}, {QPointF(6, 6)}});
    QVERIFY(!spy.isEmpty() && !spy.first().first().value<ZelVertexHandle>().isValid());
    flush();
    checkStep({&model});
    QVERIFY(messages().messages(QtDebugMsg).isEmpty());

    scene_->removeCurve(&model);
    model.vertexHandle(0).remove();
    model.setVertices(hill());
    expectAssertion("orv::contains(curves_, curve)", "reloadCurve", 229);
    flush();
    QVERIFY(scene_->items().isEmpty());
    scene_->addCurve(&model);
    spy.clear();
    model.setVertices(hill());
    QCOMPARE(spy.size(), 1);
    flush();
    checkStep({&model});
}

void CurveSceneTest::deadModelsLeaveNothingBehind()
{
    auto model = std::make_unique<ZelBezierCurveModel>();
    model->setVertices({{QPointF(0, 0)}, {QPointF(1, 1), {}, {}, false, true}, {QPointF(2, 0)}});
    scene_->addCurve(model.get());
    QGraphicsView view(scene_.get());
    view.show();
    marker(*model, 1)->setSelected(true);
    ZelCurveModel *address = model.get();
    model.reset();
    QVERIFY(scene_->curvesBoundingRect().isNull());
    scene_->removeSelectedVertex();
    flush();
    QVERIFY(itemsOf<Marker>().isEmpty());
    QVERIFY(!scene_->selectedVertex().isValid());
    scene_->onStyleUpdated();
    expectAssertion("model_ != nullptr", "onStyleUpdated", 276);
    scene_->removeCurve(address);
    QVERIFY(messages().messages(QtDebugMsg).isEmpty());

    // The scene goes first, with a curve on its way out.
    ZelBezierCurveModel survivor;
    survivor.setVertices(hill());
    scene_->addCurve(&survivor);
    marker(survivor, 1)->setSelected(true);
    scene_->removeCurve(&survivor);
    scene_->addCurve(&survivor);
    marker(survivor, 0)->setSelected(true);
    survivor.vertexHandle(2).remove();
    scene_.reset();
    style_.reset();
    survivor.setVertices(hill());
    flush();
}

void CurveSceneTest::strangeModelsAreShownAsFarAsPossible()
{
    AnyModel model;
    model.bounds = QRectF(0, 0, 2, 2);
    model.points = {{{position, QPointF(notANumber, 0)}, {in, QPointF(0, 1)}},
                    {{position, QPointF(1e30, -1e30)}, {out, QPointF(0, notANumber)}},
                    {{position, QPointF(1, 1)}, {in, QStringLiteral("no point")}},
                    {}};
    scene_->addCurve(&model);
    QVERIFY(!marker(model, 0)->isVisible() && !marker(model, 0, in)->isVisible());
    QCOMPARE(marker(model, 1)->scenePos(), QPointF(1e30, -1e30));
    QVERIFY(!marker(model, 1, out)->isVisible());
    QVERIFY(marker(model, 2)->isVisible() && !marker(model, 3)->isVisible());
    const QRectF before = scene_->sceneRect();
    for (const QRectF &bounds :
         {QRectF(notANumber, 0, 1, 1), QRectF(0, 0, std::numeric_limits<double>::infinity(), 1)}) {
        model.bounds = bounds;
        Q_EMIT model.changed();
        QCOMPARE(scene_->sceneRect(), before);
    }
    model.bounds = QRectF(-1e30, -1e30, 2e30, 2e30);
    for (int i = 0; i < 100'000; ++i)
        model.shape.lineTo(i % 977, i % 3 ? 1e30 : -i);
    Q_EMIT model.changed();
    QGraphicsView view(scene_.get());
    view.resize(200, 100);
    QVERIFY(!view.grab().isNull());
    QTest::mouseMove(view.viewport(), QPoint(100, 50));
    scene_->addCurve(nullptr);
    messages().expect(QtWarningMsg, QStringLiteral("no curve to be added"));
}

void CurveSceneTest::listenersMayChangeTheModelAtAnyTime()
{
    ZelBezierCurveModel model;
    QList<Vertex> vertices;
    for (int i = 0; i < 20; ++i)
        vertices.append({QPointF(i, 0), QPointF(i - 0.3, 1), QPointF(i + 0.3, 1)});
    model.setVertices(vertices);
    scene_->addCurve(&model);
    // Told while the curve walks its vertices.
    connect(scene_.get(), qOverload<ZelVertexHandle>(&ZelCurveScene::selectionChanged), &model,
            [&](const ZelVertexHandle &vertex) {
                if (vertex.isValid() && model.vertexCount() > 5) {
                    model.vertexHandle(model.vertexCount() - 1).remove();
                    model.addVertex(0.5F);
                    model.vertexHandle(2).remove();
                }
            });
    bool isNested = false;
    connect(&model, &ZelCurveModel::changed, scene_.get(), [&] {
        if (!std::exchange(isNested, true)) {
            model.vertexHandle(0).setData(out, QPointF(0.25, double(model.vertexCount())));
            isNested = false;
        }
    });
    for (int i = 0; i < 10; ++i) {
        QGraphicsItem *tangent = marker(model, 1, in);
        tangent->setSelected(true);
        const ZelVertexHandle vertex = scene_->selectedVertex();
        if (Marker *selected =
                static_cast<Marker *>(ZelCurveSceneAccess::marker(*scene_, vertex, in)))
            selected->remove();
        flush();
    }
    checkStep({&model});
}

void CurveSceneTest::softAssertionsTellAndChangeNothing()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    ZelCurveScene bare(nullptr);
    bare.addCurve(&model);
    expectAssertion("style_ != nullptr", "addCurve", 70);
    scene_->addCurve(&model);
    scene_->addCurve(&model);
    expectAssertion("!orv::contains(curves_, model)", "addCurve", 71);
    checkStep({&model});

    ZelBezierCurveModel other;
    other.setVertices(hill());
    scene_->removeCurve(&other);
    expectAssertion("orv::contains(curves_, model)", "removeCurve", 89);
    (scene_.get()->*updateCurveOfScene())(&other);
    expectAssertion("orv::contains(curves_, curve)", "updateCurve", 221);

    auto *curve = scene_->findChild<ZelCurveScene::Curve *>();
    curve->addVertex(other.vertexHandle(0));
    expectAssertion("handle.model() == model_.data()", "addVertex", 410);
    curve->addVertex(model.vertexHandle(0));
    expectAssertion("!orv::contains(vertices_, handle)", "addVertex", 411);
    curve->removeVertex(other.vertexHandle(0));
    expectAssertion("handle.model() == model_.data()", "removeVertex", 400);
    const ZelVertexHandle handle = model.vertexHandle(0);
    curve->removeVertex(handle);
    curve->removeVertex(handle);
    expectAssertion("orv::contains(vertices_, handle)", "removeVertex", 401);
    curve->addVertex(handle);
    flush();
    checkStep({&model});

    ZelBezierCurveModel empty;
    const ZelCurveScene::Curve unstyled(&empty, scene_.get(), nullptr);
    expectAssertion("style_ != nullptr", "onStyleUpdated", 275);

    ZelCurveVertexItem item(other.vertexHandle(1), scene_.get(), style_.get());
    other.vertexHandle(1).remove();
    item.update();
    expectAssertion("handle_.isValid()", "update", 258, "ZelCurveVertexItem");
    const QRectF bounds = item.marker(position)->boundingRect();
    item.marker(position)->setDiameter(0.0);
    expectAssertion("size > 0.0", "setDiameter", 365, "ZelCurveVertexItem");
    QCOMPARE(item.marker(position)->boundingRect(), bounds);
}

void CurveSceneTest::step(QRandomGenerator &random, ZelBezierCurveModel &model)
{
    const int count = model.vertexCount();
    const ZelVertexHandle vertex =
        count ? model.vertexHandle(random.bounded(count)) : ZelVertexHandle();
    const auto key = ZelVertexData(random.bounded(3));
    const QPointF point(random.bounded(20.0), random.bounded(10.0));
    auto *marker = static_cast<Marker *>(ZelCurveSceneAccess::marker(*scene_, vertex, key));
    switch (random.bounded(12)) {
    case 0:
    case 1:
        if (count < 40)
            model.addVertex(float(point.x()));
        break;
    case 2:
        ZelVertexHandle(vertex).remove();
        break;
    case 3:
        ZelVertexHandle(vertex).setData(key, key == position ? QVariant(point) : QVariant());
        break;
    case 4:
        if (marker && marker->isVisible())
            marker->setSelected(random.bounded(2));
        break;
    case 5:
        scene_->removeSelectedVertex();
        break;
    case 6:
        scene_->onStyleUpdated();
        break;
    case 7:
        if (random.bounded(20) == 0)
            model.setVertices(hill());
        break;
    case 8:
        model.setGapAfter(vertex, random.bounded(2));
        break;
    case 9:
        // Onto the vertex, where a tangent vanishes.
        ZelVertexHandle(vertex).setData(key, vertex.data(position));
        break;
    default:
        if (marker)
            marker->setPosition(point);
    }
}

void CurveSceneTest::aRandomWalkKeepsItemsAndModelsInStep()
{
    QRandomGenerator random(4711);
    std::array<std::unique_ptr<ZelBezierCurveModel>, 3> models;
    QGraphicsView view(scene_.get());
    view.resize(100, 100);
    for (int i = 0; i < 10'000; ++i) {
        auto &model = models[size_t(random.bounded(3))];
        if (!model) {
            model = std::make_unique<ZelBezierCurveModel>();
            scene_->addCurve(model.get());
        } else if (random.bounded(100) == 0) {
            scene_->removeCurve(model.get());
            model.reset();
        } else {
            step(random, *model);
        }
        if (i % 50 == 0)
            view.grab();
        if (random.bounded(10) != 0)
            continue;
        flush();
        QList<ZelBezierCurveModel *> shown;
        for (const auto &entry : models) {
            if (entry)
                shown.append(entry.get());
        }
        checkStep(shown);
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY(messages().messages(QtDebugMsg).isEmpty());
}

ZEL_TEST_MAIN(CurveSceneTest)
#include "tst_curve_scene.moc"
