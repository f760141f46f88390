// The scene of curves: items that follow their models, selection, style, and models that don't
// behave.

#include "TestCase.h"
#include "UserInput.h"
#include "curve/ZelCurveMarker.h"
#include "curve/ZelCurveSceneAccess.h"
#include "curve/ZelCurveSceneCurve.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelCurveScene>
#include <ZelWidgets/ZelCurveView2Style>
#include <ZelWidgets/ZelPenScaling>

#include <QGraphicsView>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <cmath>
#include <limits>

namespace {

using Vertex = ZelBezierCurveModel::Vertex;
using Marker = ZelCurveVertexItem::Marker;
using LineItem = FixedLineWidthItem<QGraphicsLineItem>;
using PathItem = FixedLineWidthItem<QGraphicsPathItem>;
constexpr ZelVertexData position = ZelVertexData::Position;
constexpr ZelVertexData in = ZelVertexData::InTangent;
constexpr ZelVertexData out = ZelVertexData::OutTangent;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QList<Vertex> hill()
{
    return {{QPointF(0, 0)}, {QPointF(1, 2), QPointF(0.5, 2), QPointF(1.5, 2)}, {QPointF(2, 0)}};
}

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

void flush()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Items are handed on to deletions of their own.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template <typename Item>
QList<Item *> itemsOf(const QGraphicsScene &scene)
{
    QList<Item *> found;
    for (QGraphicsItem *item : scene.items()) {
        if (auto *wanted = dynamic_cast<Item *>(item))
            found.append(wanted);
    }
    return found;
}

} // namespace

class CurveSceneTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itemsFollowTheModel();
    void gapsAreConnectedByDots();
    void sceneGrowsAroundItsCurves();
    void theLaterSelectionStays();
    void aHiddenTangentHandsItsSelectionOn();
    void markersRemoveWhatTheyStandFor();
    void mouseSelectsAddsAndSparesTheRightButton();
    void selectedVerticesAreHighlighted();
    void markersFollowTheFont();
    void stampedMarkersLookPainted();
    void hardResetsRebuildAndRemovedModelsAreForgotten();
    void deadModelsLeaveNothingBehind();
    void strangeModelsAreShownAsFarAsPossible();
    void listenersMayChangeTheModelAtAnyTime();
    void softAssertionsTellAndChangeNothing();
    void pensAreUnscaled();
    void aRandomWalkKeepsItemsAndModelsInStep();

private:
    Marker *marker(const ZelCurveModel &model, int index, ZelVertexData key = position) const
    {
        return static_cast<Marker *>(
            ZelCurveSceneAccess::marker(*scene_, model.vertexHandle(index), key));
    }
    void checkStep(const QList<ZelBezierCurveModel *> &models) const;
    void expectAssertion(const char *expression, const char *function, int line,
                         const char *file = "ZelCurveScene");
    void step(QRandomGenerator &random, ZelBezierCurveModel &model);

    std::unique_ptr<ZelCurveView2Style> style_;
    std::unique_ptr<ZelCurveScene> scene_;
};

void CurveSceneTest::init()
{
    TestCase::init();
    style_ = std::make_unique<ZelCurveView2Style>();
    scene_ = std::make_unique<ZelCurveScene>(nullptr);
    scene_->setStyle(style_.get());
}

void CurveSceneTest::cleanup()
{
    scene_.reset();
    style_.reset();
    TestCase::cleanup();
}

/// The latest debug message is this assertion.
void CurveSceneTest::expectAssertion(const char *expression, const char *function, int line,
                                     const char *file)
{
    const QStringList texts = messages().messages(QtDebugMsg);
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts.first(),
             QStringLiteral("soft assertion: \"%1\" failed in function: %2\n in file: "
                            "src/libs/zelwidgets/curve/%3\n line: %4\n")
                 .arg(QLatin1String(expression), QLatin1String(function), QLatin1String(file))
                 .arg(line));
    messages().clear();
}

/// Every vertex has its three markers where they belong, and there are no others.
void CurveSceneTest::checkStep(const QList<ZelBezierCurveModel *> &models) const
{
    int count = 0;
    for (const ZelBezierCurveModel *model : models) {
        QVERIFY(std::ranges::any_of(itemsOf<PathItem>(*scene_), [&](const PathItem *item) {
            return item->path() == model->path(QRectF());
        }));
        for (int i = 0; i < model->vertexCount(); ++i, ++count) {
            const Vertex vertex = model->vertices()[i];
            QVERIFY(marker(*model, i));
            QCOMPARE(marker(*model, i)->scenePos(), vertex.position);
            for (const auto &[key, end] :
                 {std::pair{in, vertex.inTangent}, std::pair{out, vertex.outTangent}}) {
                const Marker *tangent = marker(*model, i, key);
                const bool shown = end && *end != vertex.position;
                QCOMPARE(tangent->isVisible(), shown);
                if (shown)
                    QCOMPARE(tangent->scenePos(), *end);
            }
        }
    }
    QCOMPARE(itemsOf<Marker>(*scene_).size(), 3 * count);
    QCOMPARE(itemsOf<LineItem>(*scene_).size(), 2 * count);
    QVERIFY(scene_->selectedItems().size() <= 1);
}

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
    const LineItem *line = itemsOf<LineItem>(*scene_).first();
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
    QCOMPARE(itemsOf<PathItem>(*scene_).size(), 1);
    model.shape.lineTo(1, 1);
    model.shape.moveTo(1 + 1e-14, 1);
    model.shape.lineTo(2, 0);
    model.shape.moveTo(3, 1);
    model.shape.lineTo(4, 1);
    style_->curveWidths[&model] = 2.9F;
    style_->curveColors[&model] = Qt::red;
    Q_EMIT model.changed();
    const QList<PathItem *> items = itemsOf<PathItem>(*scene_);
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
    for (const PathItem *item : itemsOf<PathItem>(*scene_))
        QCOMPARE(item->pen().color(), QColor(Qt::blue));
    model.shape = QPainterPath();
    Q_EMIT model.changed();
    QCOMPARE(itemsOf<PathItem>(*scene_).size(), 1);
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

void CurveSceneTest::theLaterSelectionStays()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    QSignalSpy spy(scene_.get(), qOverload<ZelVertexHandle>(&ZelCurveScene::selectionChanged));
    QGraphicsItem *foreign = scene_->addRect(0, 0, 1, 1);
    foreign->setFlag(QGraphicsItem::ItemIsSelectable);
    const QList<QGraphicsItem *> items{marker(model, 0), marker(model, 1, in), marker(model, 2),
                                       foreign, marker(model, 1)};
    for (int i = 0; i < 50; ++i) {
        QGraphicsItem *later = items[i % items.size()];
        later->setSelected(true);
        QCOMPARE(scene_->selectedItems(), QList<QGraphicsItem *>{later});
        const auto *selected = dynamic_cast<Marker *>(later);
        QCOMPARE(scene_->selectedVertex(), selected ? selected->vertexHandle() : ZelVertexHandle());
        QCOMPARE(spy.takeLast().first().value<ZelVertexHandle>(), scene_->selectedVertex());
    }
    QCOMPARE(spy.size(), 0);
    // From the tangent to its vertex there is no news.
    marker(model, 1, out)->setSelected(true);
    QCOMPARE(spy.size(), 0);
    scene_->clearSelection();
    QCOMPARE(spy.size(), 1);
    QVERIFY(!scene_->selectedVertex().isValid());
}

void CurveSceneTest::aHiddenTangentHandsItsSelectionOn()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    for (const ZelVertexData key : {in, out}) {
        marker(model, 1, key)->setSelected(true);
        marker(model, 1, key)->setPosition(QPointF(1, 2));
        QVERIFY(!marker(model, 1, key)->isVisible());
        QVERIFY(marker(model, 1)->isSelected());
        QCOMPARE(scene_->selectedItems().size(), 1);
        QCOMPARE(scene_->selectedVertex(), model.vertexHandle(1));
    }
}

void CurveSceneTest::markersRemoveWhatTheyStandFor()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    scene_->removeSelectedVertex();
    QCOMPARE(model.vertexCount(), 3);
    marker(model, 1, in)->setSelected(true);
    scene_->removeSelectedVertex();
    QCOMPARE(model.vertexCount(), 3);
    QVERIFY(!model.hasVertexData(1, in));
    scene_->removeSelectedVertex();
    scene_->removeSelectedVertex();
    QCOMPARE(model.vertexCount(), 2);
    flush();
    checkStep({&model});
    QVERIFY(!scene_->selectedVertex().isValid());
}

void CurveSceneTest::mouseSelectsAddsAndSparesTheRightButton()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    QGraphicsView view(scene_.get());
    view.resize(400, 300);
    view.setAlignment(Qt::AlignLeft);
    view.scale(100, -100);
    view.centerOn(1, 1);
    view.show();
    const auto at = [&](double x, double y) {
        return view.mapFromScene(QPointF(x, y));
    };
    UserInput::press(view.viewport(), at(1, 2));
    UserInput::release(view.viewport(), at(1, 2));
    QVERIFY(marker(model, 1)->isSelected());
    UserInput::press(view.viewport(), at(1.5, 1.5), {}, Qt::RightButton);
    UserInput::release(view.viewport(), at(1.5, 1.5), {}, Qt::RightButton);
    QVERIFY(marker(model, 1)->isSelected());
    UserInput::press(view.viewport(), at(0, 0), Qt::ControlModifier);
    UserInput::release(view.viewport(), at(0, 0), Qt::ControlModifier);
    QCOMPARE(scene_->selectedItems(), QList<QGraphicsItem *>{marker(model, 0)});
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at(0.25, -0.5));
    QCOMPARE(model.vertexCount(), 4);
    const double x = view.mapToScene(at(0.25, -0.5)).x();
    QCOMPARE(model.vertices()[1].position.x(), double(float(x)));
}

void CurveSceneTest::selectedVerticesAreHighlighted()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    ZelCurveView2Style &style = *style_;
    style.highlightColor = Qt::yellow;
    style.vertexOutlineColor = Qt::red;
    style.vertexFillColor = Qt::green;
    style.vertexSelectedFillColor = Qt::blue;
    style.vertexPenWidth = 0.1;
    style.vertexHighlightPenWidth = 0.2;
    style.vertexDiameter = 0.75;
    style.tangentOutlineColor = Qt::cyan;
    style.tangentFillColor = Qt::gray;
    style.tangentSelectedFillColor = Qt::white;
    style.tangentPenWidth = 0.05;
    style.tangentHighlightPenWidth = 0.15;
    style.tangentDiameter = 0.5;
    style.tangentLineColor = Qt::magenta;
    style.tangentLineWidth = 0.25;
    style.backgroundColor = Qt::darkBlue;
    scene_->onStyleUpdated();
    QCOMPARE(scene_->backgroundBrush(), QBrush(Qt::darkBlue));
    const double height = QFontMetricsF(QApplication::font()).height();
    const auto check = [&](bool selected) {
        const Marker *vertex = marker(model, 1);
        const Marker *tangent = marker(model, 1, out);
        QCOMPARE(vertex->pen().color(), QColor(selected ? Qt::yellow : Qt::red));
        const double width = selected ? 0.2 : 0.1;
        QCOMPARE(vertex->pen().widthF(), width * height);
        QCOMPARE(vertex->path().boundingRect().width(), (0.75 - width / 2) * height);
        QCOMPARE(vertex->brush().color(), QColor(Qt::green));
        QCOMPARE(tangent->pen().color(), QColor(selected ? Qt::yellow : Qt::cyan));
        QCOMPARE(tangent->pen().widthF(), (selected ? 0.15 : 0.05) * height);
        QCOMPARE(tangent->brush().color(), QColor(selected ? Qt::white : Qt::gray));
        QCOMPARE(marker(model, 0)->pen().color(), QColor(Qt::red));
        int highlighted = 0;
        for (const LineItem *line : itemsOf<LineItem>(*scene_)) {
            QVERIFY(line->pen().isCosmetic());
            QCOMPARE(line->pen().widthF(), 0.25 * height);
            highlighted += line->pen().color() == QColor(Qt::yellow);
        }
        QCOMPARE(highlighted, selected ? 2 : 0);
    };
    check(false);
    marker(model, 1, out)->setSelected(true);
    check(true);
    scene_->clearSelection();
    check(false);
}

void CurveSceneTest::markersFollowTheFont()
{
    const QFont before = QApplication::font();
    ZelBezierCurveModel model;
    model.setVertices({{QPointF(0, 0)}});
    scene_->addCurve(&model);
    const double size = marker(model, 0)->path().boundingRect().width();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 3);
    QApplication::setFont(large);
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    scene_->render(&painter, QRectF(), QRectF(-1, -1, 2, 2));
    const double now = marker(model, 0)->path().boundingRect().width();
    QApplication::setFont(before);
    QVERIFY(now > 2 * size);
    QVERIFY(marker(model, 0)->boundingRect().width() > now);
}

/// The largest difference of a channel.
int difference(const QImage &left, const QImage &right)
{
    int worst = 0;
    for (qsizetype i = 0; i < left.sizeInBytes(); ++i)
        worst = std::max(worst, std::abs(int(left.constBits()[i]) - int(right.constBits()[i])));
    return worst;
}

void CurveSceneTest::stampedMarkersLookPainted()
{
    for (const int scale : {1, 2}) {
        QImage blank(QSize(40, 40) * scale, QImage::Format_RGB32);
        blank.setDevicePixelRatio(scale);
        blank.fill(Qt::white);
        for (const QPointF place : {QPointF(20, 20), QPointF(20.5, 20.25), QPointF(20.875, -0.25),
                                    QPointF(19.12, 38.9)}) {
            for (const bool isRound : {true, false}) {
                const ZelMarkerLook look{isRound, 12.5, 1.5, qRgb(200, 40, 40), qRgb(30, 200, 90)};
                QImage stamped = blank;
                QPainter stamping(&stamped);
                stamping.translate(place);
                ZelMarkerPainter().paint(stamping, look);
                QImage painted = blank;
                QPainter painting(&painted);
                painting.setRenderHint(QPainter::Antialiasing);
                painting.translate(place);
                painting.setPen(QPen(QColor(look.pen), look.penWidth));
                painting.setBrush(QColor(look.brush));
                painting.drawPath(zelMarkerPath(isRound, look.size));
                // An eighth of a pixel along each axis, at the corners.
                QVERIFY(difference(stamped, painted) <= 2 * 256 / 8 + 2);
                QVERIFY(difference(stamped, blank) > 200);
            }
        }
    }
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
    QVERIFY(itemsOf<Marker>(*scene_).isEmpty());
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

void CurveSceneTest::pensAreUnscaled()
{
    struct Case
    {
        ZelScaleMethod method;
        double width;
        double expected;
        bool cosmetic = false;
    };
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(2, -5);
    for (const Case &now : {Case{ZelScaleMethod::X, 3, 1.5}, Case{ZelScaleMethod::Y, 3, 0.6},
                            Case{ZelScaleMethod::Min, 3, 1.5}, Case{ZelScaleMethod::Max, 3, 0.6},
                            Case{ZelScaleMethod(77), 3, 0.6}, Case{ZelScaleMethod::X, 0.5, 0.25},
                            Case{ZelScaleMethod::X, 0.4, 0.4, true}}) {
        painter.setPen(QPen(Qt::red, now.width));
        unscalePenWidth(&painter, now.method);
        QCOMPARE(painter.pen().widthF(), now.expected);
        QCOMPARE(painter.pen().isCosmetic(), now.cosmetic);
    }
    QPen cosmetic(Qt::red, 4);
    cosmetic.setCosmetic(true);
    painter.setPen(cosmetic);
    unscalePenWidth(&painter, ZelScaleMethod::X);
    QCOMPARE(painter.pen(), cosmetic);
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
