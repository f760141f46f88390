#pragma once

#include <algorithm>
#include <limits>

/// A length of the scene that shows as so many pixels at this scale, with the sign of the scale; 0
/// at the scale 0, at which a view shows nothing.
inline double zelSceneLength(double pixels, double scale)
{
    return scale != 0 ? pixels / scale : 0;
}

/// A coordinate as a float; the farthest one for what is beyond.
inline float zelSceneFloat(double coordinate)
{
    constexpr double limit = std::numeric_limits<float>::max();
    return float(std::clamp(coordinate, -limit, limit));
}
