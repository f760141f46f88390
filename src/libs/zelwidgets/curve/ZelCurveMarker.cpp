#include "ZelCurveMarker.h"

#include <ZelCore/ZelSoftAssert>

#include <QPainter>

#include <algorithm>

namespace {

constexpr char file[] = "src/libs/zelwidgets/curve/ZelCurveVertexItem";

} // namespace

ZelCurveVertexItem::IMarker::~IMarker() = default;

ZelCurveVertexItem::Marker::Marker(QGraphicsItem *parent, const ZelVertexHandle &handle,
                                   ZelVertexData dataKey, double diameter, Shape shape)
    : QGraphicsPathItem(parent)
    , handle_(handle)
    , dataKey_(dataKey)
    , shape_(shape)
    , normalBrush_(brush())
    , selectedBrush_(brush())
    , diameter_(diameter)
    , pen_(Qt::black, 0)
{
    setFlags(ItemIsSelectable | ItemIgnoresTransformations);
    setAcceptHoverEvents(true);
    rebuild();
}

void ZelCurveVertexItem::Marker::setOutline(const QPen &pen)
{
    if (pen == pen_)
        return;
    pen_ = pen;
    rebuild();
}

void ZelCurveVertexItem::Marker::setBrushes(const QBrush &normal, const QBrush &selected)
{
    normalBrush_ = normal;
    selectedBrush_ = selected;
    setBrush(normal);
}

void ZelCurveVertexItem::Marker::setDiameter(double size)
{
    if (!ZEL_SOFT_ASSERT(size > 0.0, "size > 0.0", "setDiameter", file, 365))
        return;
    diameter_ = size;
    rebuild();
}

void ZelCurveVertexItem::Marker::rebuild()
{
    fontHeight_ = zelApplicationFontHeight();
    size_ = std::max(0.0, (diameter_ - pen_.widthF() * 0.5) * fontHeight_);
    QPen scaled = pen_;
    scaled.setWidthF(std::max(0.0, pen_.widthF() * fontHeight_));
    // The width 0 stands for a line of one pixel.
    const double reach = (size_ + std::max(1.0, scaled.widthF())) / 2;
    const QRectF bounds(-reach, -reach, 2 * reach, 2 * reach);
    if (bounds != bounds_) {
        prepareGeometryChange();
        bounds_ = bounds;
    }
    setPen(scaled);
    const QPainterPath outline = zelMarkerPath(shape_ == Shape::Circle, size_);
    if (outline != path())
        setPath(outline);
}

void ZelCurveVertexItem::Marker::setPosition(QPointF position)
{
    handle_.setData(dataKey_, position, nullptr);
}

QPointF ZelCurveVertexItem::Marker::position() const
{
    return handle_.data(dataKey_).toPointF();
}

void ZelCurveVertexItem::Marker::remove()
{
    if (dataKey_ == ZelVertexData::Position)
        handle_.remove();
    else
        handle_.setData(dataKey_, QVariant(), nullptr);
}

QPainterPath ZelCurveVertexItem::Marker::shape() const
{
    QPainterPath shape;
    if (shape_ == Shape::Circle)
        shape.addEllipse(bounds_);
    else
        shape.addRect(bounds_);
    return shape;
}

ZelMarkerLook ZelCurveVertexItem::Marker::look() const
{
    return {shape_ == Shape::Circle, size_, pen().widthF(), pen().color().rgba(),
            brush().color().rgba()};
}

void ZelCurveVertexItem::Marker::paint(QPainter *painter, const QStyleOptionGraphicsItem *,
                                       QWidget *)
{
    if (fontHeight_ != zelApplicationFontHeight())
        rebuild();
    picture_.paint(*painter, look());
}

QVariant ZelCurveVertexItem::Marker::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSelectedChange) {
        setBrush(value.toBool() ? selectedBrush_ : normalBrush_);
        rebuild();
    }
    return QGraphicsPathItem::itemChange(change, value);
}
