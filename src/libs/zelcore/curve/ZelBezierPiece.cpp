#include "ZelBezierPiece.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace {

/// The vector, shortened so that it goes at most this far horizontally.
QPointF shortened(QPointF vector, double width)
{
    const double reach = std::abs(vector.x());
    return reach > width ? vector * (width / reach) : vector;
}

double cubic(double a, double b, double c, double d, double t)
{
    const double s = 1.0 - t;
    return s * s * s * a + 3.0 * s * s * t * b + 3.0 * s * t * t * c + t * t * t * d;
}

QPointF mix(QPointF a, QPointF b, double t)
{
    return a * (1.0 - t) + b * t;
}

} // namespace

ZelBezierPiece ZelBezierPiece::between(QPointF from, QPointF outTangent, QPointF inTangent,
                                       QPointF to)
{
    const double width = to.x() - from.x();
    return {from, from + shortened(outTangent - from, width), to + shortened(inTangent - to, width),
            to};
}

QPointF ZelBezierPiece::at(double t) const
{
    return {cubic(from.x(), control1.x(), control2.x(), to.x(), t),
            cubic(from.y(), control1.y(), control2.y(), to.y(), t)};
}

double ZelBezierPiece::parameterAt(double x) const
{
    if (x <= from.x())
        return 0.0;
    if (x >= to.x())
        return 1.0;
    // x grows with the parameter, so halving always finds it; 60 steps reach the last bit.
    double low = 0.0;
    double high = 1.0;
    for (int step = 0; step < 60; ++step) {
        const double middle = 0.5 * (low + high);
        (cubic(from.x(), control1.x(), control2.x(), to.x(), middle) < x ? low : high) = middle;
    }
    return 0.5 * (low + high);
}

std::pair<ZelBezierPiece, ZelBezierPiece> ZelBezierPiece::split(double t) const
{
    const QPointF a = mix(from, control1, t);
    const QPointF b = mix(control1, control2, t);
    const QPointF c = mix(control2, to, t);
    const QPointF ab = mix(a, b, t);
    const QPointF bc = mix(b, c, t);
    const QPointF middle = mix(ab, bc, t);
    return {{from, a, ab, middle}, {middle, bc, c, to}};
}

std::pair<double, double> ZelBezierPiece::heights() const
{
    double low = std::min(from.y(), to.y());
    double high = std::max(from.y(), to.y());
    if (std::min(control1.y(), control2.y()) >= low && std::max(control1.y(), control2.y()) <= high)
        return {low, high};

    // Where the derivative a t^2 + 2 b t + c vanishes.
    const double a = to.y() - from.y() + 3.0 * (control1.y() - control2.y());
    const double b = from.y() - 2.0 * control1.y() + control2.y();
    const double c = control1.y() - from.y();
    const double root = std::sqrt(std::max(0.0, b * b - a * c));
    const double q = -(b + std::copysign(root, b));
    for (const double t : {q / a, c / q}) {
        if (t > 0.0 && t < 1.0) {
            const double y = cubic(from.y(), control1.y(), control2.y(), to.y(), t);
            low = std::min(low, y);
            high = std::max(high, y);
        }
    }
    return {low, high};
}
