#include "ZelGridLines.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZelGridLines {

double spacing(double sceneSize, double viewSize, double minSceneSize, double minViewSize)
{
    const double pixelsPerMinStep = viewSize / (sceneSize / minSceneSize);
    // A whole number of steps must not become one more by the rounding of the sizes: the grid would
    // jump while the view is panned.
    constexpr double rounding = 1e-9;
    const double steps = std::ceil(minViewSize / pixelsPerMinStep * (1 - rounding));
    return std::max(1.0, steps) * minSceneSize;
}

std::vector<float> positions(double from, double to, double spacing)
{
    const double first = std::ceil(from / spacing);
    const double last = std::floor(to / spacing);
    const double count = last - first + 1;
    if (!(spacing > 0 && std::isfinite(spacing) && std::isfinite(count) && count >= 1))
        return {};
    if (count > most)
        return positions(from, to, spacing * std::ceil(count / most));
    constexpr double limit = std::numeric_limits<float>::max();
    std::vector<float> result;
    result.reserve(size_t(count));
    for (int i = 0; i < int(count); ++i) {
        // A first one of -0 loses its sign by the sum; it would be written with it.
        const double position = (first + i) * spacing;
        if (std::abs(position) <= limit)
            result.push_back(float(position));
    }
    return result;
}

} // namespace ZelGridLines
