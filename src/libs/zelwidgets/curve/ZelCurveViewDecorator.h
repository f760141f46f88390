#pragma once

#include <ZelWidgets/zelwidgets_export.h>

class QPainter;
class QRectF;
class QTransform;

/// Something that a ZelCurveView paints behind its curves.
class ZELWIDGETS_EXPORT ZelCurveViewDecorator
{
public:
    virtual ~ZelCurveViewDecorator();

    /// The rectangle is the shown area in curve coordinates; the transform leads from there to the
    /// pixels that the painter counts in.
    virtual void paint(QPainter &painter, const QRectF &rect, const QTransform &transform) = 0;
};
