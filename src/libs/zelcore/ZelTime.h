#pragma once

/// A time of day, in seconds from midnight.
struct ZelTime
{
    double seconds = 0.0;
};

constexpr bool operator==(const ZelTime &left, const ZelTime &right)
{
    return left.seconds == right.seconds;
}

constexpr bool operator!=(const ZelTime &left, const ZelTime &right)
{
    return !(left == right);
}
