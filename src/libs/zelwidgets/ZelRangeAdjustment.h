#pragma once

#include <QList>

/// How the range of a row's slider follows its number.
namespace ZelRangeAdjustment {

struct Range
{
    double minimum = 0.0;
    double maximum = 0.0;
};

constexpr bool operator==(const Range &left, const Range &right)
{
    return left.minimum == right.minimum && left.maximum == right.maximum;
}

constexpr bool operator!=(const Range &left, const Range &right)
{
    return !(left == right);
}

enum class Method {
    /// Zooms in and out by simple numbers and keeps the lower end, or the symmetry.
    Grow,
    /// Puts the number into the middle of a range twice its size.
    Recentre
};

/// Computes the range that suits the value, within the limits. False if the current one stays: it
/// suits, the value isn't finite, or the limits would leave next to nothing. The result is written
/// only where a new range could be computed.
bool adjust(double value, Method method, const Range &current, const Range &limits, Range &result);

/// The smallest range that holds both.
Range united(const Range &first, const Range &second);

/// The maximum that leaves a tenth of headroom above the value, up to the limit.
int softMaximum(int value, int limit);

/// The index of the entry that is closest to the value, the first of several; -1 in an empty list.
int closest(const QList<int> &entries, int value);

} // namespace ZelRangeAdjustment
