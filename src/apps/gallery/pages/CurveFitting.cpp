#include "CurveFitting.h"

#include <algorithm>
#include <cmath>
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

/// The sample between two where a single piece has to be cut; `to` if it is good enough.
qsizetype Fit::worst(qsizetype from, qsizetype to) const
{
    const QPointF start = samples_[from];
    const QPointF way = samples_[to] - start;
    const double startSlope = slopeAt(from, 1) * way.x();
    const double endSlope = slopeAt(to, -1) * way.x();
    double largest = tolerance_;
    double sharpest = 0.0;
    qsizetype worstSample = to;
    qsizetype sharpestCorner = to;
    for (qsizetype i = from + 1; i < to; ++i) {
        const QPointF sample = samples_[i];
        const double t = (sample.x() - start.x()) / way.x();
        const double height = t * t * (3.0 - 2.0 * t) * way.y() +
                              t * (1.0 - t) * ((1.0 - t) * startSlope - t * endSlope);
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
    for (size_t i = 0; i < at.size(); ++i) {
        const QPointF position = samples_[at[i]];
        ZelBezierCurveModel::Vertex vertex{position};
        if (i > 0) {
            const double third = (position.x() - samples_[at[i - 1]].x()) / 3.0;
            vertex.inTangent = position - QPointF(third, third * slopeAt(at[i], -1));
        }
        if (i + 1 < at.size()) {
            const double third = (samples_[at[i + 1]].x() - position.x()) / 3.0;
            vertex.outTangent = position + QPointF(third, third * slopeAt(at[i], 1));
        }
        vertex.smooth = isSmooth(at[i]);
        result.append(vertex);
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
