#pragma once

#include <ZelCore/zelcore_export.h>

#include <algorithm>
#include <array>
#include <cmath>

/// Conversions between colour spaces, in 32-bit floats.
///
/// RGB, CMYK and saturation and value of HSV go from 0 to 1, hue from 0 up to below 360 degrees;
/// XYZ has Y = 100 for white; L goes from 0 to 100. RGB is sRGB-encoded, the white point is D65.
/// Numbers outside these ranges are converted by the same formulas unless it is said otherwise;
/// what isn't finite never stops a conversion.
namespace ZelColorMath {

using Triple = std::array<float, 3>;
using Quad = std::array<float, 4>;

/// Below this difference saturations, channels and black count as the same.
inline constexpr float resolution = 0.0001f;

/// The sixth of the colour circle that a hue lies in (0 to 5); hues outside 0 to 360 are folded.
inline int hueSector(float sixths)
{
    if (sixths >= 0.0f && sixths < 6.0f)
        return int(sixths);
    const float folded = std::fmod(std::floor(sixths), 6.0f);
    return int(folded < 0.0f ? folded + 6.0f : folded);
}

/// A hue that isn't finite counts as 0.
inline Triple hsvToRgb(const Triple &hsv)
{
    const float saturation = hsv[1];
    const float value = hsv[2];
    if (std::abs(saturation) < resolution)
        return {value, value, value};
    const float sixths = std::isfinite(hsv[0]) ? hsv[0] / 60.0f : 0.0f;
    const float fraction = sixths - std::floor(sixths);
    const float low = (1.0f - saturation) * value;
    const float falling = (1.0f - fraction * saturation) * value;
    const float rising = (1.0f - (1.0f - fraction) * saturation) * value;
    switch (hueSector(sixths)) {
    case 0:
        return {value, rising, low};
    case 1:
        return {falling, value, low};
    case 2:
        return {low, value, rising};
    case 3:
        return {low, falling, value};
    case 4:
        return {rising, low, value};
    default:
        return {value, low, falling};
    }
}

/// Greys have hue 0 and saturation 0.
inline Triple rgbToHsv(const Triple &rgb)
{
    const auto [red, green, blue] = rgb;
    const float most = std::max({red, green, blue});
    const float least = std::min({red, green, blue});
    const float range = most - least;
    if (std::abs(range) < resolution)
        return {0.0f, 0.0f, most};
    float sixths = (red - green) / range + 4.0f;
    if (most - red < resolution)
        sixths = (green - blue) / range;
    else if (most - green < resolution)
        sixths = (blue - red) / range + 2.0f;
    float hue = sixths * 60.0f;
    if (hue < 0.0f)
        hue += 360.0f;
    if (hue >= 360.0f)
        hue -= 360.0f;
    return {hue, most == 0.0f ? 0.0f : range / most, most};
}

inline Quad rgbToCmyk(const Triple &rgb)
{
    const float cyan = 1.0f - rgb[0];
    const float magenta = 1.0f - rgb[1];
    const float yellow = 1.0f - rgb[2];
    const float black = std::min({cyan, magenta, yellow});
    if (std::abs(1.0f - black) < resolution)
        return {0.0f, 0.0f, 0.0f, black};
    const float rest = 1.0f - black;
    return {(cyan - black) / rest, (magenta - black) / rest, (yellow - black) / rest, black};
}

inline Triple cmykToRgb(const Quad &cmyk)
{
    const float black = cmyk[3];
    const float rest = 1.0f - black;
    return {1.0f - (rest * cmyk[0] + black), 1.0f - (rest * cmyk[1] + black),
            1.0f - (rest * cmyk[2] + black)};
}

ZELCORE_EXPORT Triple rgbToXyz(const Triple &rgb);
/// Always within 0 to 1: what RGB can't show is clamped channel by channel, and what isn't a
/// number becomes 0.
ZELCORE_EXPORT Triple xyzToRgb(const Triple &xyz);
ZELCORE_EXPORT Triple xyzToLab(const Triple &xyz);
ZELCORE_EXPORT Triple labToXyz(const Triple &lab);

/// XYZ of a black body of this temperature in kelvin, with Y = 50. Black (0, 0, 0) for a body too
/// cold to radiate a number, for temperatures that aren't above 0 and for what isn't a number.
ZELCORE_EXPORT Triple blackBodyToXyz(float kelvin);

/// Correlated colour temperature in kelvin by Robertson's method; 0 for black and for colours that
/// none of the isotemperature lines (1667 K and up) meets.
ZELCORE_EXPORT float temperature(const Triple &xyz);

} // namespace ZelColorMath
