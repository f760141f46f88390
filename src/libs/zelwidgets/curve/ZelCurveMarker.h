#pragma once

#include "curve/ZelCurveVertexItem.h"
#include "curve/ZelMarkerPainter.h"

#include <QBrush>
#include <QGraphicsPathItem>
#include <QPen>

/// The handle by which a point of a vertex is selected and dragged, sized in heights of the
/// application font.
class ZelCurveVertexItem::Marker : public QGraphicsPathItem, public ZelCurveVertexItem::IMarker
{
public:
    enum class Shape : int { Circle = 0, Square = 1 };

    /// The diameter includes half of the outline's width.
    Marker(QGraphicsItem *parent, const ZelVertexHandle &handle, ZelVertexData dataKey,
           double diameter, Shape shape);

    /// The width of the pen is in font heights too.
    void setOutline(const QPen &pen);
    void setBrushes(const QBrush &normal, const QBrush &selected);
    /// Not positive is refused.
    void setDiameter(double size);

    void setPosition(QPointF position) override;
    QPointF position() const override;
    void remove() override;
    ZelVertexHandle vertexHandle() const override { return handle_; }
    ZelVertexData vertexData() const override { return dataKey_; }

    QRectF boundingRect() const override { return bounds_; }
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    void rebuild();
    ZelMarkerLook look() const;

    ZelVertexHandle handle_;
    ZelVertexData dataKey_;
    Shape shape_;
    QBrush normalBrush_;
    QBrush selectedBrush_;
    double diameter_;
    QPen pen_;
    /// That of the application font when the path was built.
    double fontHeight_ = 0;
    /// Of the path without the outline.
    double size_ = 0;
    QRectF bounds_;
    ZelMarkerPainter picture_;
};
