#pragma once

#include "curve/ZelSceneItem.h"

#include <ZelCore/ZelTimedCursor>

#include <QGraphicsRectItem>
#include <QPointer>

class ZelGridRulerDecorator;

/// The band of a ruler; it tells its decorator of the mouse.
class QRulerRectItem : public QGraphicsRectItem, public ZelSceneItem
{
public:
    explicit QRulerRectItem(ZelGridRulerDecorator *decorator);

    /// Without the pen.
    QPainterPath shape() const override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    QPointer<ZelGridRulerDecorator> decorator_;
    ZelTimedCursor timedCursor_;
};
