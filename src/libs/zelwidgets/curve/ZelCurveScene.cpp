#include "ZelCurveScene.h"

#include "curve/ZelCurveMarker.h"
#include "curve/ZelCurveSceneAccess.h"
#include "curve/ZelCurveSceneCurve.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelCore/contains>
#include <ZelWidgets/ZelCurveView2Style>

#include <QGraphicsSceneMouseEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace {

constexpr char file[] = "src/libs/zelwidgets/curve/ZelCurveScene";
/// How much larger than its curves the scene is: the view can show what the scene holds only.
constexpr double sceneEnlargement = 50;

using IMarker = ZelCurveVertexItem::IMarker;

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.left()) && std::isfinite(rect.top()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height());
}

/// The only selected item, if it is a marker.
IMarker *selectedMarker(const QGraphicsScene &scene)
{
    const QList<QGraphicsItem *> items = scene.selectedItems();
    return items.size() == 1 ? dynamic_cast<IMarker *>(items.first()) : nullptr;
}

} // namespace

void ZelCurveScene::DeleteLater::operator()(Curve *curve) const
{
    curve->retire();
    curve->deleteLater();
}

ZelCurveScene::ZelCurveScene(QWidget *parent)
    : QGraphicsScene(parent)
{
    // Vertices move by the thousand: an index would have to be kept up all the time.
    setItemIndexMethod(NoIndex);
    connect(this, &QGraphicsScene::selectionChanged, this, &ZelCurveScene::onSelectionChanged);
}

ZelCurveScene::~ZelCurveScene()
{
    // Items that go with the base change the selection; nothing here can answer by then.
    disconnect(this, nullptr, this, nullptr);
    blockSignals(true);
}

void ZelCurveScene::setStyle(ZelCurveView2Style const *style)
{
    style_ = style;
}

void ZelCurveScene::addCurve(ZelCurveModel *model)
{
    if (!ZEL_SOFT_ASSERT(style_ != nullptr, "style_ != nullptr", "addCurve", file, 70))
        return;
    dropDeadCurve(model);
    if (!ZEL_SOFT_ASSERT(!orv::contains(curves_, model), "!orv::contains(curves_, model)",
                         "addCurve", file, 71))
        return;
    if (!model) {
        qWarning() << "ZelCurveScene: there is no curve to be added";
        return;
    }
    follow(model);
    enter(model);
    updateBoundingRect();
}

/// Another model may have come to lie where one was that died in the scene.
void ZelCurveScene::dropDeadCurve(ZelCurveModel *model)
{
    const auto found = curves_.find(model);
    if (found != curves_.end() && !found->second->model())
        curves_.erase(found);
}

/// The connections outlast removeCurve(); a model that is added again is heard once.
void ZelCurveScene::follow(ZelCurveModel *model)
{
    for (const QMetaObject::Connection &connection : connections_.value(model))
        disconnect(connection);
    connections_.insert(
        model,
        {connect(model, &ZelCurveModel::hardReset, this, [this, model] { onHardReset(model); }),
         connect(model, &ZelCurveModel::changed, this, &ZelCurveScene::updateBoundingRect),
         connect(model, &QObject::destroyed, this, [this, model] { connections_.remove(model); })});
}

void ZelCurveScene::enter(ZelCurveModel *model)
{
    curves_.insert_or_assign(model, CurveOwner(new Curve(model, this, style_)));
    updateCurve(model);
}

void ZelCurveScene::onHardReset(ZelCurveModel *model)
{
    Q_EMIT selectionChanged(ZelVertexHandle());
    reloadCurve(model);
}

void ZelCurveScene::removeCurve(ZelCurveModel *model)
{
    if (ZEL_SOFT_ASSERT(orv::contains(curves_, model), "orv::contains(curves_, model)",
                        "removeCurve", file, 89))
        curves_.erase(model);
}

void ZelCurveScene::updateCurve(ZelCurveModel *curve)
{
    if (ZEL_SOFT_ASSERT(orv::contains(curves_, curve), "orv::contains(curves_, curve)",
                        "updateCurve", file, 221))
        curves_.at(curve)->update();
}

void ZelCurveScene::reloadCurve(ZelCurveModel *curve)
{
    if (!ZEL_SOFT_ASSERT(orv::contains(curves_, curve), "orv::contains(curves_, curve)",
                         "reloadCurve", file, 229))
        return;
    removeCurve(curve);
    enter(curve);
}

void ZelCurveScene::clearCurves()
{
    curves_.clear();
}

QRectF ZelCurveScene::curvesBoundingRect()
{
    QRectF bounds;
    for (const auto &[key, curve] : curves_) {
        const QRectF rect = curve->model() ? curve->model()->boundingRect() : QRectF();
        if (isFinite(rect))
            bounds = bounds.united(rect);
    }
    return bounds;
}

void ZelCurveScene::updateBoundingRect()
{
    boundingRect_ = boundingRect_.united(curvesBoundingRect());
    if (boundingRect_.height() == 0)
        boundingRect_.setHeight(1.0);
    if (boundingRect_.width() == 0)
        boundingRect_.setWidth(1.0);
    QRectF large(QPointF(), boundingRect_.size() * sceneEnlargement);
    large.moveCenter(boundingRect_.center());
    if (style_ && double(style_->sceneLeftLimit) > large.left())
        large.setLeft(double(style_->sceneLeftLimit));
    setSceneRect(large);
}

ZelVertexHandle ZelCurveScene::selectedVertex() const
{
    return selected_;
}

void ZelCurveScene::removeSelectedVertex()
{
    if (IMarker *marker = selectedMarker(*this))
        marker->remove();
}

void ZelCurveScene::onStyleUpdated()
{
    if (style_)
        setBackgroundBrush(style_->backgroundColor);
    Q_EMIT styleUpdated();
}

void ZelCurveScene::onSelectionChanged()
{
    ensureSingleSelection();
    const QList<QGraphicsItem *> items = selectedItems();
    formerlySelected_ = items.isEmpty() ? nullptr : items.first();
    IMarker *marker = selectedMarker(*this);
    if (marker && marker->vertexHandle() == selected_)
        return;
    selected_ = marker ? marker->vertexHandle() : ZelVertexHandle();
    Q_EMIT selectionChanged(selected_);
}

/// The later of two selected items stays.
void ZelCurveScene::ensureSingleSelection()
{
    QList<QGraphicsItem *> items = selectedItems();
    if (items.size() < 2)
        return;
    const bool wasBlocked = blockSignals(true);
    // The list has no order of its own.
    if (items.removeOne(formerlySelected_))
        formerlySelected_->setSelected(false);
    items.removeLast();
    for (QGraphicsItem *item : std::as_const(items))
        item->setSelected(false);
    blockSignals(wasBlocked);
}

void ZelCurveScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        event->accept();
    else
        QGraphicsScene::mousePressEvent(event);
}

void ZelCurveScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || curves_.empty()) {
        QGraphicsScene::mouseDoubleClickEvent(event);
        return;
    }
    for (const auto &[key, curve] : curves_) {
        if (ZelCurveModel *model = curve->model()) {
            event->accept();
            model->addVertex(float(event->scenePos().x()));
            return;
        }
    }
}

QList<ZelCurveModel *> ZelCurveSceneAccess::models(const ZelCurveScene &scene)
{
    QList<ZelCurveModel *> models;
    for (const auto &[key, curve] : scene.curves_) {
        if (curve->model())
            models.append(curve->model());
    }
    return models;
}

QGraphicsItem *ZelCurveSceneAccess::marker(const ZelCurveScene &scene,
                                           const ZelVertexHandle &handle, ZelVertexData key)
{
    const auto found = scene.curves_.find(handle.model());
    const ZelCurveVertexItem *item =
        found == scene.curves_.end() ? nullptr : found->second->vertexItem(handle);
    return item ? item->marker(key) : nullptr;
}
