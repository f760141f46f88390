#include "ZelThumbWheelGeometry.h"

#include <QWheelEvent>
#include <QtMath>

#include <algorithm>
#include <cmath>

double ZelThumbWheelGeometry::angle(double number, double transmissionRatio, double length)
{
    const double radius = length / 2;
    const double result = number / transmissionRatio / radius;
    return std::isfinite(result) ? result : 0;
}

std::vector<ZelThumbWheelGeometry::Cog> ZelThumbWheelGeometry::cogs(double length, int cogCount,
                                                                    double angle)
{
    const int count = std::clamp(cogCount, 1, maximumCogCount);
    const double spacing = M_PI / count;
    double first = std::fmod(angle, spacing);
    if (first < 0)
        first += spacing;
    std::vector<Cog> cogs;
    cogs.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double at = std::min(first + i * spacing, M_PI);
        cogs.push_back({length / 2 * (1 - std::cos(at)), std::sin(at)});
    }
    return cogs;
}

double ZelThumbWheelGeometry::turned(double number, double way, const Range &range)
{
    const double minimum = range.minimum;
    const double maximum = std::max(range.minimum, range.maximum);
    const double end = number + way;
    if (std::isnan(end))
        return number;
    if (!range.wrapsAround)
        return std::clamp(end, minimum, maximum);
    if (std::isinf(end))
        return number;
    // Each number has the same share of the drum, half a step to both sides of it.
    const double span = maximum - minimum + 1;
    const double below = minimum - 0.5;
    double part = std::fmod(end - below, span);
    if (part < 0)
        part += span;
    return below + part;
}

int ZelThumbWheelGeometry::nearest(double number, const Range &range)
{
    const double minimum = range.minimum;
    const double maximum = std::max(range.minimum, range.maximum);
    return static_cast<int>(std::clamp(std::round(number), minimum, maximum));
}

int ZelThumbWheelGeometry::takeNotches(int &sum, int angleDelta)
{
    // A turn back starts anew, so that it is felt at once.
    if ((sum < 0) != (angleDelta < 0))
        sum = 0;
    sum += std::clamp(angleDelta, -1'000'000, 1'000'000);
    const int notches = sum / QWheelEvent::DefaultDeltasPerStep;
    sum -= notches * QWheelEvent::DefaultDeltasPerStep;
    return notches;
}
