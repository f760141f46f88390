#include "ZelDrawnDecorators.h"

#include <ZelWidgets/ZelPenScaling>

#include <QPainter>

#include <utility>

namespace {

/// Sets a pen for vertical (X) or horizontal (Y) lines.
void setUnscaledPen(QPainter &painter, const QPen &pen, ZelScaleMethod method)
{
    painter.setPen(pen);
    unscalePenWidth(&painter, method);
}

} // namespace

void ZelAxisDecorator::setPen(QPen pen)
{
    pen_ = std::move(pen);
}

void ZelAxisDecorator::paint(QPainter &painter, QRectF const &rect, QTransform const &)
{
    setUnscaledPen(painter, pen_, ZelScaleMethod::Y);
    painter.drawLine(QPointF(rect.left(), 0), QPointF(rect.right(), 0));
    setUnscaledPen(painter, pen_, ZelScaleMethod::X);
    painter.drawLine(QPointF(0, rect.top()), QPointF(0, rect.bottom()));
}

void ZelFrameDecorator2::setPen(QPen pen)
{
    pen_ = std::move(pen);
}

void ZelFrameDecorator2::paint(QPainter &painter, QRectF const &rect, QTransform const &)
{
    setUnscaledPen(painter, pen_, ZelScaleMethod::Max);
    painter.drawPolygon(QPolygonF(rect));
}

void ZelVLineDecorator2::setPen(QPen pen)
{
    pen_ = std::move(pen);
}

void ZelVLineDecorator2::setPosition(double position)
{
    position_ = position;
}

void ZelVLineDecorator2::paint(QPainter &painter, QRectF const &rect, QTransform const &)
{
    if (!(rect.left() <= position_ && position_ <= rect.right()))
        return;
    setUnscaledPen(painter, pen_, ZelScaleMethod::X);
    painter.drawLine(QPointF(position_, rect.bottom()), QPointF(position_, rect.top()));
}
