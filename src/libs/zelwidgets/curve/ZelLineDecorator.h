#pragma once

#include <ZelWidgets/ZelCurveViewDecorator>

#include <QPen>

/// A vertical line at a place of the horizontal axis.
class ZELWIDGETS_EXPORT ZelLineDecorator : public ZelCurveViewDecorator
{
public:
    /// Neither of them repaints a view.
    void setPen(QPen pen);
    void setPosition(double position);

    void paint(QPainter &painter, const QRectF &rect, const QTransform &transform) override;

private:
    QPen pen_{Qt::black};
    double position_ = 0;
};
