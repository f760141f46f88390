#pragma once

#include "curve/ZelSceneItem.h"

#include <ZelCore/ZelScopedCursor>
#include <ZelCore/ZelTimedCursor>
#include <ZelWidgets/ZelTimeMarkerDecorator>

#include <QGraphicsLineItem>
#include <QGraphicsPolygonItem>
#include <QPointer>

#include <memory>

/// One of the parts of a time marker: the line and the triangle, of which only what lies within
/// bounds is to be seen and touched. Its coordinates are pixels.
class ZelTimeMarkerDecorator::TimeMarkerItem : public QGraphicsItem, public ZelSceneItem
{
public:
    explicit TimeMarkerItem(ZelTimeMarkerDecorator *decorator);

    void setPen(const QPen &pen);
    void setShapes(const QLineF &line, const QPolygonF &triangle);
    /// Of both shapes, uncut.
    QRectF childBounds() const { return childBounds_; }
    void setBounds(const QRectF &bounds);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    /// Nothing: the children paint.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    void updateChildBounds();

    QGraphicsLineItem *line_;
    QGraphicsPolygonItem *triangle_;
    QPointer<ZelTimeMarkerDecorator> decorator_;
    QRectF bounds_;
    QRectF childBounds_;
    ZelTimedCursor timedCursor_;
    std::unique_ptr<ZelScopedCursor> hoverCursor_;
};
