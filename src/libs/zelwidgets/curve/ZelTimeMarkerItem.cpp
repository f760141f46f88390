#include "ZelTimeMarkerItem.h"

#include <QBrush>
#include <QGraphicsSceneMouseEvent>

ZelTimeMarkerDecorator::TimeMarkerItem::TimeMarkerItem(ZelTimeMarkerDecorator *decorator)
    : line_(new QGraphicsLineItem(this))
    , triangle_(new QGraphicsPolygonItem(this))
    , decorator_(decorator)
    , timedCursor_(Qt::SizeHorCursor, [this] { return !zelHoldsMouse(this); })
{
    setFlags(ItemIgnoresTransformations | ItemIsSelectable | ItemClipsToShape |
             ItemClipsChildrenToShape);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    // Presses are meant for the marker, not for its shapes.
    line_->setAcceptedMouseButtons(Qt::NoButton);
    triangle_->setAcceptedMouseButtons(Qt::NoButton);
}

void ZelTimeMarkerDecorator::TimeMarkerItem::setPen(const QPen &pen)
{
    line_->setPen(pen);
    triangle_->setPen(pen);
    triangle_->setBrush(QBrush(pen.color(), Qt::SolidPattern));
    updateChildBounds();
}

void ZelTimeMarkerDecorator::TimeMarkerItem::setShapes(const QLineF &line,
                                                       const QPolygonF &triangle)
{
    line_->setLine(line);
    triangle_->setPolygon(triangle);
    updateChildBounds();
}

void ZelTimeMarkerDecorator::TimeMarkerItem::updateChildBounds()
{
    const QRectF bounds = line_->boundingRect() | triangle_->boundingRect();
    if (bounds == childBounds_)
        return;
    prepareGeometryChange();
    childBounds_ = bounds;
}

void ZelTimeMarkerDecorator::TimeMarkerItem::setBounds(const QRectF &bounds)
{
    prepareGeometryChange();
    bounds_ = bounds;
}

QRectF ZelTimeMarkerDecorator::TimeMarkerItem::boundingRect() const
{
    return bounds_ & childBounds_;
}

QPainterPath ZelTimeMarkerDecorator::TimeMarkerItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void ZelTimeMarkerDecorator::TimeMarkerItem::paint(QPainter *, const QStyleOptionGraphicsItem *,
                                                   QWidget *)
{}

void ZelTimeMarkerDecorator::TimeMarkerItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    timedCursor_.setCursor();
    QGraphicsItem::mousePressEvent(event);
}

void ZelTimeMarkerDecorator::TimeMarkerItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    // Last, as a slot can end the decorator and with it the item.
    if (decorator_)
        decorator_->setPosition(event->scenePos().x());
}

void ZelTimeMarkerDecorator::TimeMarkerItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    timedCursor_.stop();
    QGraphicsItem::mouseReleaseEvent(event);
}

void ZelTimeMarkerDecorator::TimeMarkerItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    event->accept();
    hoverCursor_ = std::make_unique<ZelScopedCursor>(Qt::SizeHorCursor);
    if (decorator_)
        decorator_->setUseHoverPen(true);
}

void ZelTimeMarkerDecorator::TimeMarkerItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    event->accept();
    hoverCursor_.reset();
    if (decorator_)
        decorator_->setUseHoverPen(false);
}
