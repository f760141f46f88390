#include "ZelRangeAdjustment.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZelRangeAdjustment {

namespace {

constexpr double smallestValue = 0.001;
constexpr double smallestSpan = 0.0001;
constexpr double marginPart = 0.1;
constexpr double headroom = 1.1;
constexpr int headroomParts = 10;

Range recentred(double value)
{
    double size = std::abs(value);
    if (size < smallestValue)
        size = 1.0;
    return {value - size, value - size + 2 * size};
}

/// The next simple number above: a whole multiple of the power of ten that it has.
double simpleAbove(double number)
{
    double power = std::pow(10.0, std::round(std::log10(number)));
    if (power > number)
        power /= 10;
    const double simple = std::ceil(number / power) * power;
    return simple > 1.0 ? std::round(simple) : simple;
}

bool grown(double value, const Range &current, Range &result)
{
    const bool isSymmetric = current.minimum == -current.maximum;
    const double margin = (current.maximum - current.minimum) * marginPart;
    const bool isInside = value >= current.minimum && value <= current.maximum;
    const bool isNearMinimum = isInside && margin > value - current.minimum;
    const bool isNearMaximum = isInside && margin > current.maximum - value;
    double maximum = 0.0;
    if (isNearMaximum || (isSymmetric && isNearMinimum)) {
        maximum = current.maximum * headroom;
    } else {
        if ((isInside && !isNearMinimum) || value == 0.0)
            return false;
        maximum = simpleAbove(2 * std::abs(value));
    }
    const bool mirrors = isSymmetric || (!isInside && value < current.minimum);
    result = {mirrors ? -maximum : current.minimum, maximum};
    return true;
}

} // namespace

bool adjust(double value, Method method, const Range &current, const Range &limits, Range &result)
{
    if (!std::isfinite(value))
        return false;
    Range range;
    if (method == Method::Recentre)
        range = recentred(value);
    else if (!grown(value, current, range))
        return false;
    range.maximum = std::min(range.maximum, limits.maximum);
    range.minimum = std::max(range.minimum, limits.minimum);
    const double span = range.maximum - range.minimum;
    if (!std::isfinite(span) || span < smallestSpan)
        return false;
    result = range;
    return result != current;
}

Range united(const Range &first, const Range &second)
{
    return {std::min(first.minimum, second.minimum), std::max(first.maximum, second.maximum)};
}

int softMaximum(int value, int limit)
{
    const qint64 wanted = qint64{value} + value / headroomParts;
    return static_cast<int>(std::clamp<qint64>(wanted, std::numeric_limits<int>::min(), limit));
}

int closest(const QList<int> &entries, int value)
{
    int best = -1;
    qint64 bestDistance = std::numeric_limits<qint64>::max();
    for (int i = 0; i < entries.size(); ++i) {
        const qint64 distance = std::abs(qint64{entries.at(i)} - value);
        if (distance < bestDistance) {
            best = i;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace ZelRangeAdjustment
