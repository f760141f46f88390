#include "gradient/ZelGradientSegment.h"

#include <ZelCore/ZelColorMath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr float nearness = 1e-5f;
constexpr int huePieces = 16;
constexpr float steepest = 4.0f;

float straight(float position, float middle)
{
    if (position < middle)
        return 0.5f * position / middle;
    return middle < 1.0f ? 0.5f + 0.5f * (position - middle) / (1.0f - middle) : 0.5f;
}

float curved(float position, float middle)
{
    const float inside = std::clamp(middle, nearness, 1.0f - nearness);
    return std::pow(position, std::log(0.5f) / std::log(inside));
}

/// The quarter of a circle from (0, 0) to (1, 1) that starts steep.
float quarterCircle(float position)
{
    return std::sqrt(std::max(0.0f, 1.0f - (1.0f - position) * (1.0f - position)));
}

float turned(float from, float to, float blend, bool isUpwards)
{
    float way = to - from;
    if (isUpwards && way <= 0.0f)
        way += 360.0f;
    if (!isUpwards && way >= 0.0f)
        way -= 360.0f;
    return from + way * blend;
}

} // namespace

std::vector<ZelGradientSegment::Piece> ZelGradientSegment::pieces() const
{
    if (!(right > left))
        return {};
    std::vector<Piece> result;
    if (function == Step) {
        result = {{left, middle, from, from, 1.0f, 1.0f}, {middle, right, to, to, 1.0f, 1.0f}};
    } else {
        const std::vector<float> positions = cuts();
        for (size_t i = 1; i < positions.size(); ++i)
            result.push_back(piece(positions[i - 1], positions[i]));
    }
    std::erase_if(result, [](const Piece &piece) { return !(piece.end > piece.start); });
    return result;
}

float ZelGradientSegment::relativeMiddle() const
{
    return (middle - left) / (right - left);
}

float ZelGradientSegment::blend(float position) const
{
    const float line = straight(position, relativeMiddle());
    switch (function) {
    case Curved:
        return curved(position, relativeMiddle());
    case Sine:
        return 0.5f + 0.5f * std::sin(std::numbers::pi_v<float> * (line - 0.5f));
    case SphereIncreasing:
        return quarterCircle(line);
    case SphereDecreasing:
        return 1.0f - quarterCircle(1.0f - line);
    default:
        return line;
    }
}

ZelGradientSegment::Rgba ZelGradientSegment::colorAt(float blend) const
{
    Rgba result;
    for (size_t i = 0; i < result.size(); ++i)
        result[i] = from[i] + (to[i] - from[i]) * blend;
    if (coloring == Rgb)
        return result;
    const auto start = ZelColorMath::rgbToHsv({from[0], from[1], from[2]});
    const auto end = ZelColorMath::rgbToHsv({to[0], to[1], to[2]});
    const auto [red, green, blue] = ZelColorMath::hsvToRgb(
        {turned(start[0], end[0], blend, coloring == HsvUpwards),
         start[1] + (end[1] - start[1]) * blend, start[2] + (end[2] - start[2]) * blend});
    return {red, green, blue, result[3]};
}

/// Where the pieces meet, from 0 to 1.
std::vector<float> ZelGradientSegment::cuts() const
{
    const float half = relativeMiddle();
    if (coloring != Rgb) {
        std::vector<float> result;
        for (int i = 0; i <= huePieces; ++i)
            result.push_back(float(i) / float(huePieces));
        return result;
    }
    if ((function == Linear || function == Curved) && std::abs(half - 0.5f) < nearness)
        return {0.0f, 1.0f};
    if (function == Linear || function == Sine)
        return {0.0f, half, 1.0f};
    std::vector<float> result = {0.0f, half, 1.0f};
    for (const float level : {1 / 64.0f, 1 / 16.0f, 0.25f, 0.5f, 0.75f, 15 / 16.0f, 63 / 64.0f})
        result.push_back(positionOf(level));
    std::sort(result.begin(), result.end());
    return result;
}

/// By halving: where the blend, which never falls, reaches the level.
float ZelGradientSegment::positionOf(float level) const
{
    constexpr int halvings = 30;
    float low = 0.0f;
    float high = 1.0f;
    for (int i = 0; i < halvings; ++i) {
        const float middle = (low + high) / 2;
        (blend(middle) < level ? low : high) = middle;
    }
    return high;
}

/// The cubic that meets the blend at both ends and at the thirds between them.
ZelGradientSegment::Piece ZelGradientSegment::piece(float first, float last) const
{
    const float start = blend(first);
    const float end = blend(last);
    const auto at = [&](float position) {
        return left + (right - left) * position;
    };
    Piece result = {at(first), last < 1.0f ? at(last) : right, colorAt(start), colorAt(end), 1.0f,
                    1.0f};
    const float way = end - start;
    if (coloring != Rgb || way < nearness)
        return result;
    const float third = (blend(first + (last - first) / 3) - start) / way;
    const float twoThirds = (blend(first + (last - first) * 2 / 3) - start) / way;
    const float c = 9 * third - 4.5f * twoThirds + 1;
    const float b = (27 * third - 1 - 8 * c) / 2;
    result.slopeOut = std::clamp(c, 0.0f, steepest);
    result.slopeIn = std::clamp(3 - b - 2 * c, 0.0f, steepest);
    return result;
}
