#include "QRulerRectItem.h"

#include "curve/ZelSceneNumbers.h"

#include <ZelWidgets/ZelGridRulerDecorator>

#include <QGraphicsSceneMouseEvent>

// A slot can end the decorator and with it the item: nothing follows the signals.

QRulerRectItem::QRulerRectItem(ZelGridRulerDecorator *decorator)
    : decorator_(decorator)
    , timedCursor_(Qt::SizeHorCursor, [this] { return !zelHoldsMouse(this); })
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setFlag(ItemIsSelectable);
}

QPainterPath QRulerRectItem::shape() const
{
    QPainterPath path;
    path.addRect(rect());
    return path;
}

void QRulerRectItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    timedCursor_.setCursor();
    if (decorator_)
        Q_EMIT decorator_->clicked(zelSceneFloat(event->scenePos().x()));
}

void QRulerRectItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (decorator_)
        Q_EMIT decorator_->moved(zelSceneFloat(event->scenePos().x()));
}

void QRulerRectItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    timedCursor_.stop();
    if (decorator_)
        Q_EMIT decorator_->released();
}
