#include "curve/ZelCurveViewMath.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace {

constexpr double air = 1.1;
constexpr float wheelSpeed = -0.0005F;
/// How long the cursor has to be outside for a whole step.
constexpr qint64 stepTime = 250;
/// Some room is left for what a view adds.
constexpr double mostPixels = std::numeric_limits<int>::max() / 2.0;

/// How far the value lies beyond the range, negative below it.
double excess(double value, double least, double most)
{
    if (value > most)
        return value - most;
    return value < least ? value - least : 0.0;
}

bool isUsable(double factor)
{
    return std::isnormal(factor) && factor > 0;
}

} // namespace

QPointF ZelCurveViewMath::turned(const QTransform &transform, QPointF direction, QPointF length)
{
    const QPointF a(transform.m11() * direction.x(), transform.m22() * direction.y());
    const QPointF b(transform.m11() * length.x(), transform.m22() * length.y());
    const double k = std::hypot(b.x(), b.y()) / std::hypot(a.x(), a.y());
    return {k * a.x() / transform.m11(), k * a.y() / transform.m22()};
}

std::optional<QSizeF> ZelCurveViewMath::fittingFactors(const QTransform &transform,
                                                       const QSizeF &size, const QSizeF &viewport)
{
    const double x = std::abs(viewport.width() / size.width() / transform.m11());
    const double y = std::abs(viewport.height() / size.height() / transform.m22());
    const bool isGood = isUsable(x) && isUsable(y) && isUsable(std::abs(x * transform.m11())) &&
                        isUsable(std::abs(y * transform.m22()));
    return isGood ? std::optional(QSizeF(x, y)) : std::nullopt;
}

QPointF ZelCurveViewMath::zoomedCenter(QPointF center, QPointF target, double xScale, double yScale)
{
    return {target.x() - (target.x() - center.x()) / xScale,
            target.y() - (target.y() - center.y()) / yScale};
}

bool ZelCurveViewMath::isReachable(const QTransform &transform, const QRectF &area)
{
    const QRectF pixels = transform.mapRect(area);
    return pixels.width() > 0 && pixels.height() > 0 && pixels.left() >= -mostPixels &&
           pixels.top() >= -mostPixels && pixels.right() <= mostPixels &&
           pixels.bottom() <= mostPixels && std::isnormal(transform.m11()) &&
           std::isnormal(transform.m22());
}

QRectF ZelCurveViewMath::movedToContain(const QRectF &area, QPointF point)
{
    return area.translated(excess(point.x(), area.left(), area.right()),
                           excess(point.y(), area.top(), area.bottom()));
}

QRectF ZelCurveViewMath::expandedToContain(const QRectF &area, QPointF point)
{
    return area.contains(point)
               ? area
               : area.united(QRectF(point, QSizeF(double(FLT_MIN), double(FLT_MIN))));
}

QRectF ZelCurveViewMath::withAir(const QRectF &bounds)
{
    const double width = bounds.width() > 0 ? bounds.width() : 1.0;
    const double height = bounds.height() > 0 ? bounds.height() : 1.0;
    QRectF result(0, 0, width * air, height * air);
    result.moveCenter(bounds.topLeft() + QPointF(width / 2, height / 2));
    return result;
}

float ZelCurveViewMath::wheelFactor(int angle)
{
    return 1.0F / std::exp(float(angle) * wheelSpeed);
}

QPointF ZelCurveViewMath::AutoScroll::adjusted(QPointF point, QPoint pixel, const QRectF &area,
                                               qint64 elapsed) const
{
    const double share = double(std::clamp<qint64>(elapsed, 0, stepTime)) / double(stepTime);
    const double beyondX = excess(pixel.x(), startViewport.left(), startViewport.right());
    const double beyondY = excess(pixel.y(), startViewport.top(), startViewport.bottom());
    const double stepX = startArea.width() / startViewport.width();
    QPointF result(double(float(point.x())), double(float(point.y())));
    if (beyondX != 0)
        result.setX((beyondX > 0 ? area.right() : area.left()) + beyondX * stepX * share);
    if (beyondY != 0)
        result.setY((beyondY > 0 ? area.top() : area.bottom()) - beyondY * stepY * share);
    return result;
}
