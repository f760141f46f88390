#include "ZelSliderMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double smallestSpan = 1e-5;
constexpr int gap = 2;

float narrowed(double number)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(number, -largest, largest));
}

/// minimum + part * (maximum - minimum), also where the span is no finite number.
double between(double part, double minimum, double maximum)
{
    const double span = maximum - minimum;
    return std::isfinite(span) ? span * part + minimum : maximum * part + minimum * (1 - part);
}

int leftOfHandle(float part, int width, int handle)
{
    const auto inside = static_cast<int>(static_cast<float>(handle) * part);
    return static_cast<int>(static_cast<float>(width) * part - static_cast<float>(inside));
}

} // namespace

namespace ZelSliderMath {

int position(float value, double minimum, double maximum)
{
    const double way =
        (static_cast<double>(value) - minimum) * steps / std::max(smallestSpan, maximum - minimum);
    return std::isnan(way) ? 0 : static_cast<int>(std::clamp<double>(way, 0, steps));
}

float value(int position, double minimum, double maximum)
{
    const double span = maximum - minimum;
    const double exact = std::isfinite(span)
                             ? span * position / steps + minimum
                             : between(static_cast<double>(position) / steps, minimum, maximum);
    float result = narrowed(exact);
    if (static_cast<double>(result) > maximum)
        result = std::nextafter(result, narrowed(minimum));
    if (static_cast<double>(result) < minimum)
        result = std::nextafter(result, narrowed(maximum));
    return result;
}

float valueAt(float part, double minimum, double maximum)
{
    return bounded(narrowed(between(static_cast<double>(part), minimum, maximum)), minimum,
                   maximum);
}

int positionAt(float part, int minimum, int maximum)
{
    const auto lowest = static_cast<float>(minimum);
    const float way = lowest + (static_cast<float>(maximum) - lowest) * part;
    if (way >= static_cast<float>(maximum))
        return maximum;
    return way > lowest ? static_cast<int>(way) : minimum;
}

float bounded(float value, double minimum, double maximum)
{
    return std::max(std::min(value, narrowed(maximum)), narrowed(minimum));
}

GrooveLines groove(float part, int width, int handle)
{
    GrooveLines lines;
    const int left = leftOfHandle(part, width, handle);
    if (left + handle < width - gap)
        lines.append({left + handle + gap, width - gap, GrooveLine::Present});
    if (left > gap)
        lines.append({gap, left - gap, GrooveLine::Fill});
    return lines;
}

GrooveLines grooveFromCentre(float part, int width, int handle)
{
    GrooveLines lines;
    const int left = leftOfHandle(part, width, handle);
    const int right = left + handle;
    const int centre = width / 2;
    const bool isFreeRight = right < width - gap;
    const bool isFreeLeft = left > gap;
    if (left >= centre) {
        if (isFreeRight)
            lines.append({right + gap, width - gap, GrooveLine::Background});
        if (isFreeLeft)
            lines.append({gap, std::min(centre, left - gap), GrooveLine::Present});
        if (left - gap > centre)
            lines.append({centre, left - gap, GrooveLine::Fill});
    } else {
        if (isFreeLeft)
            lines.append({gap, left - gap, GrooveLine::Background});
        if (isFreeRight)
            lines.append({std::max(centre, right + gap), width - gap, GrooveLine::Present});
        if (right + gap < centre)
            lines.append({right + gap, centre, GrooveLine::Fill});
    }
    return lines;
}

} // namespace ZelSliderMath
