#pragma once

#include <ZelWidgets/ZelCurveViewDecorator>

#include <QPen>

/// Lines at the whole multiples of a distance on each axis.
class ZELWIDGETS_EXPORT ZelGridDecorator : public ZelCurveViewDecorator
{
public:
    /// The distances in curve coordinates; one that isn't positive draws no lines.
    ZelGridDecorator(double xGrid, double yGrid);

    /// None of them repaints a view.
    void setGrid(double xGrid, double yGrid);
    void setPen(const QPen &pen);
    /// From the next painting on the distances are powers of ten that suit the shown area.
    void setRoundToDecades(bool round);

    void paint(QPainter &painter, const QRectF &rect, const QTransform &transform) override;

private:
    static double computeRoundedGridSize(double size);

    QPen pen_{Qt::black};
    double xGrid_;
    double yGrid_;
    bool roundToDecades_ = false;
};
