#include "ZelGraphicsRectItem.h"

#include "ZelArrowKeys.h"
#include "curve/ZelRectSnapping.h"

#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPen>

ZelGraphicsRectItem::ZelGraphicsRectItem(QGraphicsItem *parent)
    : ZelGraphicsRectItem(QRectF(), parent)
{}

ZelGraphicsRectItem::ZelGraphicsRectItem(const QRectF &rect, QGraphicsItem *parent)
    : QGraphicsRectItem(rect, parent)
{
    setFlags(ItemIsMovable | ItemIsSelectable | ItemIsFocusable);
    setPen(QPen(Qt::lightGray, 1));
}

void ZelGraphicsRectItem::setAllowedSnapping(int allowed)
{
    allowedSnapping_ = allowed;
}

void ZelGraphicsRectItem::setBorder(int border)
{
    border_ = border;
}

void ZelGraphicsRectItem::setSnappingDistance(int distance)
{
    snappingDistance_ = distance;
}

int ZelGraphicsRectItem::getSnap() const
{
    return snap_;
}

bool ZelGraphicsRectItem::take(int snap)
{
    if (snap != 0)
        snap_ = snap;
    return snap != 0;
}

bool ZelGraphicsRectItem::snapToBottom(int distance)
{
    return take(ZelRectSnapping::snapToBottom(rect(), pos(), scene()->sceneRect().size(), distance,
                                              allowedSnapping_));
}

bool ZelGraphicsRectItem::snapToTop(int distance)
{
    return take(ZelRectSnapping::snapToTop(rect(), pos(), scene()->sceneRect().size(), distance,
                                           allowedSnapping_));
}

void ZelGraphicsRectItem::confineToScene()
{
    if (scene())
        setPos(ZelRectSnapping::confined(snap_, boundingRect(), pos(), scene()->sceneRect().size(),
                                         border_));
}

void ZelGraphicsRectItem::keyPressEvent(QKeyEvent *event)
{
    const QPoint direction = zelArrowStep(event->key());
    if (direction.isNull() || !scene()) {
        QGraphicsRectItem::keyPressEvent(event);
        return;
    }
    event->accept();
    if (take(ZelRectSnapping::nextTowards(direction, boundingRect(), pos(),
                                          scene()->sceneRect().size(), border_, allowedSnapping_)))
        confineToScene();
}

void ZelGraphicsRectItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsRectItem::mouseMoveEvent(event);
    if (!scene())
        return;
    const int distance = border_ + snappingDistance_;
    snap_ = ZelRectSnapping::Free;
    if (!snapToBottom(distance))
        snapToTop(distance);
    confineToScene();
}

QVariant ZelGraphicsRectItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemVisibleHasChanged && value.toBool())
        confineToScene();
    return QGraphicsRectItem::itemChange(change, value);
}
