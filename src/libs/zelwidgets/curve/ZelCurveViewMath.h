#pragma once

#include <QMargins>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

#include <optional>

/// The arithmetic of the curve view, apart from any view. Areas are in scene coordinates, where y
/// points up: the top of an area is its bottom on screen.
namespace ZelCurveViewMath {

/// The vector that points on screen like the first one and is as long there as the second one.
QPointF turned(const QTransform &transform, QPointF direction, QPointF length);

/// The factors on both axes by which the transform shows an area of this size in the viewport;
/// none if no finite factors lead there.
std::optional<QSizeF> fittingFactors(const QTransform &transform, const QSizeF &size,
                                     const QSizeF &viewport);

/// The centre of an area that is zoomed by the factors so that the target stays where it is.
QPointF zoomedCenter(QPointF center, QPointF target, double xScale, double yScale);

/// Whether a view can scroll to the area at this scale: scroll bars count whole pixels.
bool isReachable(const QTransform &transform, const QRectF &area);

/// The area moved as far as it takes to have the point in it.
QRectF movedToContain(const QRectF &area, QPointF point);

/// The area enlarged as far as it takes to have the point in it.
QRectF expandedToContain(const QRectF &area, QPointF point);

/// The curves' bounds with a tenth of air; an axis without extent counts as one.
QRectF withAir(const QRectF &bounds);

/// The factor of a turn of the wheel by so many eighths of a degree.
float wheelFactor(int angle);

/// Where a dragged point goes while the cursor is outside of the viewport.
struct AutoScroll
{
    QRectF startArea;
    QRect startViewport;
    double stepY = 0; ///< scene units for each pixel outside, in a quarter of a second

    /// The point is dragged to the pixel, the area is visible now and the last call was so many
    /// milliseconds ago.
    QPointF adjusted(QPointF point, QPoint pixel, const QRectF &area, qint64 elapsed) const;
};

} // namespace ZelCurveViewMath
