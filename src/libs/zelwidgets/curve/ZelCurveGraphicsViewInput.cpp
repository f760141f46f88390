// What the user does in the view: wheel, mouse and keyboard.

#include "ZelAccessibleParts.h"
#include "ZelArrowKeys.h"
#include "curve/ZelCurveViewDrag.h"
#include "curve/ZelCurveViewMarkers.h"
#include "curve/ZelCurveViewMath.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelWidgets/ZelCurveGraphicsView>
#include <ZelWidgets/ZelCurveScene>

#include <QContextMenuEvent>
#include <QGraphicsItem>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr char path[] = "src/libs/zelwidgets/curve/ZelCurveGraphicsView";
constexpr float keyZoomIn = 1.1F;
constexpr float keyZoomOut = 0.9090909F;
constexpr int coarseStep = 10;

bool hasOnlyShift(const QKeyEvent *event)
{
    return !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
}

} // namespace

void ZelCurveGraphicsView::wheelEvent(QWheelEvent *event)
{
    if (!ZEL_SOFT_ASSERT(isValid(), "isValid()", "wheelEvent", path, 405))
        return;
    event->setAccepted(isNavigable());
    if (!isNavigable())
        return;
    const bool isAlt = event->modifiers().testFlag(Qt::AltModifier);
    // Some platforms turn the wheel's axis while Alt is held.
    const QPoint angle = event->angleDelta();
    const float factor =
        ZelCurveViewMath::wheelFactor(isAlt && angle.y() == 0 ? angle.x() : angle.y());
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        zoom(factor, 1.F, visibleArea_.center());
    else if (isAlt)
        zoom(1.F, factor, visibleArea_.center());
    else
        zoom(factor, factor, viewportTransform().inverted().map(event->position()));
}

bool ZelCurveGraphicsView::hitsSelectableItem(QPoint position) const
{
    const QList<QGraphicsItem *> items =
        scene_ ? scene_->items(mapToScene(position), Qt::IntersectsItemShape, Qt::DescendingOrder,
                               viewportTransform())
               : QList<QGraphicsItem *>();
    return std::any_of(items.begin(), items.end(), [](const QGraphicsItem *item) {
        return item->flags().testFlag(QGraphicsItem::ItemIsSelectable);
    });
}

void ZelCurveGraphicsView::mousePressEvent(QMouseEvent *event)
{
    if (!ZEL_SOFT_ASSERT(isValid(), "isValid()", "mousePressEvent", path, 551))
        return;
    const QPointer<ZelCurveGraphicsView> alive(this);
    if (event->buttons().testFlag(Qt::LeftButton))
        startDrag(event->pos());
    if (alive)
        QGraphicsView::mousePressEvent(event);
}

void ZelCurveGraphicsView::startDrag(QPoint position)
{
    const QPointer<ZelCurveGraphicsView> alive(this);
    endDrag();
    if (!alive)
        return;
    dragState_ = std::make_unique<DragState>();
    if (!hitsSelectableItem(position)) {
        if (isNavigable()) {
            dragState_->state = DragState::Pan();
            setDragMode(QGraphicsView::ScrollHandDrag);
        }
        return;
    }
    const ZelCurvePointHandle point = ZelCurveViewMarkers::pointOf(itemAt(position));
    if (!point.isValid())
        return;
    dragState_->state = std::make_unique<VertexDrag>(this, point, position);
    Q_EMIT dragStarted();
}

void ZelCurveGraphicsView::endDrag()
{
    const std::unique_ptr<DragState> ended = std::move(dragState_);
    if (!ended)
        return;
    if (std::holds_alternative<DragState::Pan>(ended->state))
        setDragMode(QGraphicsView::NoDrag);
    if (std::holds_alternative<std::unique_ptr<VertexDrag>>(ended->state)) {
        ended->state = std::monostate();
        Q_EMIT dragEnded();
    }
}

void ZelCurveGraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (!ZEL_SOFT_ASSERT(isValid(), "isValid()", "mouseMoveEvent", path, 565))
        return;
    const QPointer<ZelCurveGraphicsView> alive(this);
    dragVertex(event);
    if (!alive)
        return;
    QGraphicsView::mouseMoveEvent(event);
    if (alive && dragState_ && std::holds_alternative<DragState::Pan>(dragState_->state))
        setVisibleArea(actualVisibleArea());
}

void ZelCurveGraphicsView::dragVertex(const QMouseEvent *event)
{
    auto *drag =
        dragState_ ? std::get_if<std::unique_ptr<VertexDrag>>(&dragState_->state) : nullptr;
    if (!drag)
        return;
    const QPointer<ZelCurveGraphicsView> alive(this);
    (*drag)->move(event->pos(), event->modifiers());
    if (alive)
        announceMove();
}

void ZelCurveGraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ZelCurveGraphicsView> alive(this);
    QGraphicsView::mouseReleaseEvent(event);
    if (alive)
        endDrag();
}

void ZelCurveGraphicsView::onDelete()
{
    const QPointer<ZelCurveGraphicsView> alive(this);
    endDrag();
    if (alive && scene_)
        scene_->removeSelectedVertex();
}

void ZelCurveGraphicsView::keyPressEvent(QKeyEvent *event)
{
    if (!ZEL_SOFT_ASSERT(isValid(), "isValid()", "keyPressEvent", path, 587))
        return;
    const QPointer<ZelCurveGraphicsView> alive(this);
    if (zoomByKey(event) || editByKey(event)) {
        event->accept();
        return;
    }
    QGraphicsView::keyPressEvent(event);
    // The base scrolls by keys.
    if (alive && isValid())
        setVisibleArea(actualVisibleArea());
}

ZelCurveGraphicsView::ZoomDirection
ZelCurveGraphicsView::keyZoomDirection(const QKeyEvent *event) const
{
    // Many keyboards have Plus only with Shift.
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return NoZoom;
    if (event->key() == Qt::Key_Plus)
        return ZoomIn;
    return event->key() == Qt::Key_Minus ? ZoomOut : NoZoom;
}

QPointF ZelCurveGraphicsView::keyZoomTarget() const
{
    const ZelVertexHandle vertex = scene_ ? scene_->selectedVertex() : ZelVertexHandle();
    return vertex.isValid() ? vertex.data(ZelVertexData::Position).toPointF()
                            : visibleArea_.center();
}

bool ZelCurveGraphicsView::zoomByKey(const QKeyEvent *event)
{
    const ZoomDirection direction = keyZoomDirection(event);
    if (direction == NoZoom || !isNavigable())
        return false;
    const float factor = direction == ZoomIn ? keyZoomIn : keyZoomOut;
    zoom(factor, factor, keyZoomTarget());
    return true;
}

/// Whether the key is one that editByKey() takes now.
bool ZelCurveGraphicsView::isEditKey(const QKeyEvent *event) const
{
    const bool isDrag =
        dragState_ && std::holds_alternative<std::unique_ptr<VertexDrag>>(dragState_->state);
    if (event->key() == Qt::Key_Escape)
        return isDrag;
    if (event->key() == Qt::Key_Home)
        return isNavigable() && event->modifiers() == Qt::NoModifier;
    const bool isMarkerKey = !zelArrowStep(event->key()).isNull() || event->key() == Qt::Key_Space;
    return isMarkerKey && !isDrag && hasOnlyShift(event) &&
           ZelCurveViewMarkers::selected(scene_).isValid();
}

bool ZelCurveGraphicsView::editByKey(const QKeyEvent *event)
{
    if (!isEditKey(event))
        return false;
    switch (event->key()) {
    case Qt::Key_Escape:
        cancelDrag();
        break;
    case Qt::Key_Home:
        Q_EMIT fitRequested();
        break;
    case Qt::Key_Space:
        walkMarkersOfVertex();
        break;
    default:
        const bool isCoarse = event->modifiers().testFlag(Qt::ShiftModifier);
        nudge(zelArrowStep(event->key()) * (isCoarse ? coarseStep : 1));
    }
    return true;
}

void ZelCurveGraphicsView::cancelDrag()
{
    const QPointer<ZelCurveGraphicsView> alive(this);
    auto *drag = std::get_if<std::unique_ptr<VertexDrag>>(&dragState_->state);
    (*drag)->restore();
    if (alive)
        endDrag();
}

void ZelCurveGraphicsView::nudge(QPoint pixels)
{
    const ZelCurvePointHandle point = ZelCurveViewMarkers::selected(scene_);
    const QTransform toPixels = viewportTransform();
    moveMarker(point, toPixels.inverted().map(toPixels.map(point.data()) + pixels));
}

void ZelCurveGraphicsView::moveMarker(ZelCurvePointHandle point, const QPointF &position)
{
    const QPointer<ZelCurveGraphicsView> alive(this);
    Q_EMIT dragStarted();
    if (!alive)
        return;
    const ViewTransform stretch(transform());
    point.setData(position, &stretch);
    if (!alive)
        return;
    if (point.isValid() && isValid())
        moveVisibleAreaToContain(point.data());
    announceMove();
    Q_EMIT dragEnded();
}

bool ZelCurveGraphicsView::focusNextPrevChild(bool next)
{
    const int current = markers_->indexOf(scene_, ZelCurveViewMarkers::selected(scene_));
    const int wished = isVisible() ? markers_->nextVertex(scene_, current, next) : -1;
    if (wished < 0)
        return QGraphicsView::focusNextPrevChild(next);
    selectMarker(wished);
    return true;
}

/// From the vertex to its tangents and back to the vertex.
void ZelCurveGraphicsView::walkMarkersOfVertex()
{
    const QList<ZelCurvePointHandle> &points = markers_->list(scene_);
    const ZelCurvePointHandle selected = ZelCurveViewMarkers::selected(scene_);
    const int current = int(points.indexOf(selected));
    const auto isOfVertex = [&selected](const ZelCurvePointHandle &point) {
        return point.vertex() == selected.vertex();
    };
    if (current + 1 < points.size() && isOfVertex(points[current + 1])) {
        selectMarker(current + 1);
        return;
    }
    const auto first = std::find_if(points.begin(), points.end(), isOfVertex);
    if (first != points.end())
        selectMarker(int(first - points.begin()));
}

void ZelCurveGraphicsView::selectMarker(int index)
{
    const ZelCurvePointHandle point = markers_->list(scene_).value(index);
    const QPointer<ZelCurveGraphicsView> alive(this);
    ZelCurveViewMarkers::select(scene_, point);
    if (alive && point.isValid() && isValid())
        moveVisibleAreaToContain(point.data());
}

void ZelCurveGraphicsView::announceSelection()
{
    if (!QAccessible::isActive())
        return;
    const int index = markers_->indexOf(scene_, ZelCurveViewMarkers::selected(scene_));
    if (index >= 0)
        ZelAccessibleParts::announceCurrent(this, index);
}

void ZelCurveGraphicsView::announceMove()
{
    if (!QAccessible::isActive())
        return;
    const int index = markers_->indexOf(scene_, ZelCurveViewMarkers::selected(scene_));
    if (index >= 0)
        ZelAccessibleParts::announceValue(this, index);
}

bool ZelCurveGraphicsView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        viewport()->update();
        break;
    case QEvent::ShortcutOverride:
        if (isEditKey(static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::ContextMenu:
        if (requestMenuByKey(static_cast<QContextMenuEvent *>(event)))
            return true;
        break;
    default:
        break;
    }
    return QGraphicsView::event(event);
}

/// The menu key asks for the menu of the selected marker.
bool ZelCurveGraphicsView::requestMenuByKey(const QContextMenuEvent *event)
{
    const ZelCurvePointHandle point = ZelCurveViewMarkers::selected(scene_);
    const bool isMeant = event->reason() == QContextMenuEvent::Keyboard && point.isValid() &&
                         contextMenuPolicy() == Qt::CustomContextMenu;
    if (isMeant)
        Q_EMIT customContextMenuRequested(mapFromScene(point.data()));
    return isMeant;
}
