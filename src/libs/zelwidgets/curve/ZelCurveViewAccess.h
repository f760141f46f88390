#pragma once

#include <ZelWidgets/ZelCurveGraphicsView>

/// The view's own steps, for those who look at them one by one.
class ZelCurveViewAccess
{
public:
    static void scaleTo(ZelCurveGraphicsView &view, const QSizeF &size) { view.scaleTo(size); }
    static void updateViewport(ZelCurveGraphicsView &view) { view.updateViewport(); }
    static void zoom(ZelCurveGraphicsView &view, float xScale, float yScale, const QPointF &target)
    {
        view.zoom(xScale, yScale, target);
    }
};
