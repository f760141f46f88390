#include "ZelTriangleGeometry.h"

#include <QRect>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
constexpr double quarterTurn = std::numbers::pi / 2;
constexpr double hues = 360;

double wrapped(double angle)
{
    return angle > fullTurn ? angle - fullTurn : angle;
}

double squaredLength(QPointF vector)
{
    return QPointF::dotProduct(vector, vector);
}

/// Twice the area that two vectors span, with a sign for the side.
double cross(QPointF one, QPointF other)
{
    return one.x() * other.y() - one.y() * other.x();
}

QPointF nearestOnSide(QPointF from, QPointF to, QPointF point)
{
    const QPointF side = to - from;
    const double length = squaredLength(side);
    if (length == 0)
        return from;
    return from + side * std::clamp(QPointF::dotProduct(point - from, side) / length, 0.0, 1.0);
}

} // namespace

void ZelTriangleGeometry::setSize(QSize size)
{
    outerRadius_ = std::max(0, std::min((size.width() - 1) / 2, (size.height() - 1) / 2));
    penWidth_ = outerRadius_ / 50;
    markerSize_ = int(outerRadius_ / 12.5);
    center_ = QRect(QPoint(0, 0), size).center();
    placeCorners();
}

void ZelTriangleGeometry::setHue(int hue)
{
    setAngle(wrapped((hues - hue) * fullTurn / hues + quarterTurn));
}

void ZelTriangleGeometry::setAngle(double angle)
{
    angleA_ = angle;
    angleB_ = wrapped(angleA_ + fullTurn / 3);
    angleC_ = wrapped(angleB_ + fullTurn / 3);
    placeCorners();
}

bool ZelTriangleGeometry::isInsideRing(QPointF point) const
{
    return std::sqrt(squaredLength(point - center_)) <= innerRadius();
}

double ZelTriangleGeometry::angleAt(QPointF point) const
{
    const QPointF way = point - center_;
    const double distance = std::sqrt(squaredLength(way));
    if (distance == 0)
        return 0;
    const double angle = std::acos(std::clamp(way.x() / distance, -1.0, 1.0));
    return way.y() > 0 ? fullTurn - angle : angle;
}

int ZelTriangleGeometry::hueAt(double angle)
{
    const double fromTop = angle - quarterTurn;
    const int degrees = int((fromTop < 0 ? fromTop + fullTurn : fromTop) * hues / fullTurn);
    return (int(hues) - degrees) % int(hues);
}

QPointF ZelTriangleGeometry::pointOf(const QColor &color) const
{
    const int saturation = color.hsvSaturation();
    const int value = color.value();
    if (value == 0)
        return pointB_;
    if (value == 255 && saturation == 0)
        return pointC_;
    // Colours of one saturation lie on a line from black, colours of one value on a parallel to the
    // side from the pure hue to white.
    const QPointF brightest = pointA_ + (pointC_ - pointA_) * (255 - saturation) / 255.0;
    return pointB_ + (brightest - pointB_) * value / 255.0;
}

QColor ZelTriangleGeometry::colorAt(QPointF point, int hue) const
{
    const Weights parts = weights(point);
    const double value = std::clamp(parts.a + parts.c, 0.0, 1.0);
    const double saturation = value > 0 ? std::clamp(parts.a / value, 0.0, 1.0) : 0.0;
    return QColor::fromHsv(hue, qRound(saturation * 255), qRound(value * 255));
}

QPointF ZelTriangleGeometry::nearest(QPointF point) const
{
    const Weights parts = weights(point);
    if (parts.a >= 0 && parts.b >= 0 && parts.c >= 0)
        return point;
    const std::array<QPointF, 3> candidates{nearestOnSide(pointA_, pointB_, point),
                                            nearestOnSide(pointB_, pointC_, point),
                                            nearestOnSide(pointC_, pointA_, point)};
    return *std::min_element(candidates.begin(), candidates.end(),
                             [point](QPointF one, QPointF other) {
                                 return squaredLength(one - point) < squaredLength(other - point);
                             });
}

/// How much each corner has of a point; together they are 1. A triangle without an area is all A.
ZelTriangleGeometry::Weights ZelTriangleGeometry::weights(QPointF point) const
{
    const QPointF toA = pointA_ - pointB_;
    const QPointF toC = pointC_ - pointB_;
    const double area = cross(toA, toC);
    if (area == 0)
        return {1, 0, 0};
    const QPointF way = point - pointB_;
    const double partA = cross(way, toC) / area;
    const double partC = cross(toA, way) / area;
    return {partA, 1 - partA - partC, partC};
}

QPointF ZelTriangleGeometry::onCircle(double angle, double radius) const
{
    return {center_.x() + std::cos(angle) * radius, center_.y() - std::sin(angle) * radius};
}

void ZelTriangleGeometry::placeCorners()
{
    pointA_ = onCircle(angleA_, innerRadius());
    pointB_ = onCircle(angleB_, innerRadius());
    pointC_ = onCircle(angleC_, innerRadius());
    huePoint_ = onCircle(angleA_, outerRadius_ - outerRadius_ / 10.0);
}
