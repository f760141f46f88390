#include "CurveFitting.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

/// A turn is a corner if it is this many times as sharp as turns usually are.
constexpr double cornerSharpness = 8.0;

/// The samples with what is known of each: whether the curve has a corner there, and its slopes.
class Fit
{
public:
    Fit(const QList<QPointF> &samples, double tolerance)
        : samples_(samples)
        , tolerance_(tolerance)
    {
        findCorners();
    }

    QList<ZelBezierCurveModel::Vertex> vertices() const;

private:
    qsizetype last() const { return samples_.size() - 1; }
    double slope(qsizetype from, qsizetype to) const;
    double turn(qsizetype index) const;
    double slopeAt(qsizetype index, qsizetype step) const;
    bool isSmooth(qsizetype index) const;
    void findCorners();
    std::pair<double, double> endSlopes(qsizetype from, qsizetype to) const;
    qsizetype worst(qsizetype from, qsizetype to) const;
    std::vector<qsizetype> knots() const;

    const QList<QPointF> &samples_;
    double tolerance_;
    std::vector<bool> corners_;
};

double Fit::slope(qsizetype from, qsizetype to) const
{
    const QPointF way = samples_[to] - samples_[from];
    return way.y() / way.x();
}

/// How much the slope changes at the sample.
double Fit::turn(qsizetype index) const
{
    return std::abs(slope(index, index + 1) - slope(index - 1, index));
}

void Fit::findCorners()
{
    corners_.assign(size_t(samples_.size()), false);
    if (samples_.size() < 3)
        return;
    std::vector<double> turns(corners_.size() - 2);
    for (size_t i = 0; i < turns.size(); ++i)
        turns[i] = turn(qsizetype(i) + 1);
    std::vector<double> sorted = turns;
    const auto middle = sorted.begin() + qptrdiff(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    const double sharpest = *std::max_element(turns.begin(), turns.end());
    const double limit = std::max(cornerSharpness * *middle, 1e-6 * sharpest);
    for (size_t i = 0; i < turns.size(); ++i)
        corners_[i + 1] = turns[i] > limit;
}

bool Fit::isSmooth(qsizetype index) const
{
    return index > 0 && index < last() && !corners_[size_t(index)];
}

/// The slope at a sample, seen from the side of the step; from both sides where it is smooth.
double Fit::slopeAt(qsizetype index, qsizetype step) const
{
    if (isSmooth(index))
        return slope(index - 1, index + 1);
    const qsizetype next = index + step;
    const double nearSlope = slope(index, next);
    if (!isSmooth(next))
        return nearSlope;
    // The parabola through three samples.
    const double nearWidth = samples_[next].x() - samples_[index].x();
    const double farWidth = samples_[next + step].x() - samples_[next].x();
    return nearSlope + (nearSlope - slope(next, next + step)) * nearWidth / (nearWidth + farWidth);
}

/// The slopes at both ends of a piece. Where these are free, at corners, they are what brings the
/// piece nearest to its samples.
std::pair<double, double> Fit::endSlopes(qsizetype from, qsizetype to) const
{
    const std::pair given{slopeAt(from, 1), slopeAt(to, -1)};
    const bool isFromFree = !isSmooth(from);
    const bool isToFree = !isSmooth(to);
    if (to - from < 4 || (!isFromFree && !isToFree))
        return given;
    // The normal equations of least squares for what either slope adds to the heights.
    double aa = 0.0;
    double ab = 0.0;
    double bb = 0.0;
    double ar = 0.0;
    double br = 0.0;
    const QPointF start = samples_[from];
    const QPointF way = samples_[to] - start;
    for (qsizetype i = from + 1; i < to; ++i) {
        const double t = (samples_[i].x() - start.x()) / way.x();
        const double a = t * (1.0 - t) * (1.0 - t) * way.x();
        const double b = -t * t * (1.0 - t) * way.x();
        const double rest = samples_[i].y() - start.y() - t * t * (3.0 - 2.0 * t) * way.y();
        aa += a * a;
        ab += a * b;
        bb += b * b;
        ar += a * rest;
        br += b * rest;
    }
    if (!isToFree)
        return {(ar - ab * given.second) / aa, given.second};
    if (!isFromFree)
        return {given.first, (br - ab * given.first) / bb};
    const double determinant = aa * bb - ab * ab;
    return {(ar * bb - br * ab) / determinant, (br * aa - ar * ab) / determinant};
}

/// The sample between two where a single piece has to be cut; `to` if it is good enough.
qsizetype Fit::worst(qsizetype from, qsizetype to) const
{
    const QPointF start = samples_[from];
    const QPointF way = samples_[to] - start;
    const auto [fromSlope, toSlope] = endSlopes(from, to);
    double largest = tolerance_;
    double sharpest = 0.0;
    qsizetype worstSample = to;
    qsizetype sharpestCorner = to;
    for (qsizetype i = from + 1; i < to; ++i) {
        const QPointF sample = samples_[i];
        const double t = (sample.x() - start.x()) / way.x();
        const double height = t * t * (3.0 - 2.0 * t) * way.y() +
                              t * (1.0 - t) * ((1.0 - t) * fromSlope - t * toSlope) * way.x();
        const double error = std::abs(sample.y() - start.y() - height);
        if (error > largest) {
            largest = error;
            worstSample = i;
        }
        if (corners_[size_t(i)] && turn(i) > sharpest) {
            sharpest = turn(i);
            sharpestCorner = i;
        }
    }
    return worstSample != to && sharpestCorner != to ? sharpestCorner : worstSample;
}

std::vector<qsizetype> Fit::knots() const
{
    std::vector<qsizetype> found{0};
    // The ends of the pieces still to be looked at, the nearest on top.
    std::vector<qsizetype> ends{last()};
    while (!ends.empty()) {
        const qsizetype end = ends.back();
        const qsizetype cut = worst(found.back(), end);
        if (cut != end) {
            ends.push_back(cut);
            continue;
        }
        found.push_back(end);
        ends.pop_back();
    }
    return found;
}

QList<ZelBezierCurveModel::Vertex> Fit::vertices() const
{
    const std::vector<qsizetype> at = knots();
    QList<ZelBezierCurveModel::Vertex> result;
    for (const qsizetype index : at) {
        ZelBezierCurveModel::Vertex vertex{samples_[index]};
        vertex.smooth = isSmooth(index);
        result.append(vertex);
    }
    for (size_t i = 0; i + 1 < at.size(); ++i) {
        const double third = (samples_[at[i + 1]].x() - samples_[at[i]].x()) / 3.0;
        const auto [fromSlope, toSlope] = endSlopes(at[i], at[i + 1]);
        ZelBezierCurveModel::Vertex &from = result[qsizetype(i)];
        ZelBezierCurveModel::Vertex &to = result[qsizetype(i) + 1];
        from.outTangent = from.position + QPointF(third, third * fromSlope);
        to.inTangent = to.position - QPointF(third, third * toSlope);
    }
    return result;
}

} // namespace

QList<ZelBezierCurveModel::Vertex> fitCurve(const QList<QPointF> &samples, double tolerance)
{
    if (samples.size() > 1)
        return Fit(samples, tolerance).vertices();
    return samples.isEmpty() ? QList<ZelBezierCurveModel::Vertex>()
                             : QList<ZelBezierCurveModel::Vertex>{{samples.first()}};
}
