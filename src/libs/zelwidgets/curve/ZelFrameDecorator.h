#pragma once

#include <ZelWidgets/ZelCurveViewDecorator>

#include <QPen>

/// Frames the shown area in black, two pixels wide.
class ZELWIDGETS_EXPORT ZelFrameDecorator : public ZelCurveViewDecorator
{
public:
    void paint(QPainter &painter, const QRectF &rect, const QTransform &transform) override;

private:
    QPen pen_{Qt::black, 2};
};
