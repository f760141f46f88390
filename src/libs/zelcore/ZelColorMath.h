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

/// Where a hue lies on the colour circle: in which sixth (0 to 5), and how far into it.
struct HuePlace
{
    int sector;
    float fraction;
};

/// Folds what lies outside 0 to 6; what isn't finite counts as 0.
inline HuePlace huePlace(float sixths)
{
    if (sixths >= 0.0f && sixths < 6.0f) {
        const int sector = int(sixths);
        return {sector, sixths - float(sector)};
    }
    if (!std::isfinite(sixths))
        return {0, 0.0f};
    const float whole = std::floor(sixths);
    const float folded = std::fmod(whole, 6.0f);
    return {int(folded < 0.0f ? folded + 6.0f : folded), sixths - whole};
}

/// A hue that isn't finite counts as 0.
inline Triple hsvToRgb(const Triple &hsv)
{
    const float saturation = hsv[1];
    const float value = hsv[2];
    if (std::abs(saturation) < resolution)
        return {value, value, value};
    const auto [sector, fraction] = huePlace(hsv[0] / 60.0f);
    const float low = (1.0f - saturation) * value;
    const float falling = (1.0f - fraction * saturation) * value;
    const float rising = (1.0f - (1.0f - fraction) * saturation) * value;
    switch (sector) {
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
    if (range < resolution)
        return {0.0f, 0.0f, most};
    float sixths;
    if (most - red < resolution)
        sixths = (green - blue) / range;
    else if (most - green < resolution)
        sixths = (blue - red) / range + 2.0f;
    else
        sixths = (red - green) / range + 4.0f;
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

/// D65.
inline constexpr Triple white = {95.047f, 100.0f, 108.883f};

/// Steps of the conversions below: the sRGB curve of one channel and the cube root of L*ab, each
/// with its straight piece near 0.
inline float decoded(float channel)
{
    return channel > 0.04045f ? std::pow((channel + 0.055f) / 1.055f, 2.4f) : channel / 12.92f;
}

inline float encoded(float channel)
{
    const float value =
        channel > 0.0031308f ? std::pow(channel, 0.41666666f) * 1.055f - 0.055f : channel * 12.92f;
    // Written so that what isn't a number ends at 0.
    return value > 0.0f ? std::min(value, 1.0f) : 0.0f;
}

inline float labRoot(float ratio)
{
    return ratio > 0.008856f ? std::pow(ratio, 0.33333334f) : 7.787f * ratio + 0.13793103f;
}

inline float labCube(float root)
{
    const float cube = root * root * root;
    return cube > 0.008856f ? cube : (root - 0.13793103f) / 7.787f;
}

inline Triple rgbToXyz(const Triple &rgb)
{
    const float red = decoded(rgb[0]) * 100.0f;
    const float green = decoded(rgb[1]) * 100.0f;
    const float blue = decoded(rgb[2]) * 100.0f;
    return {0.412453f * red + 0.35758f * green + 0.180423f * blue,
            0.212671f * red + 0.71516f * green + 0.072169f * blue,
            0.019334f * red + 0.119193f * green + 0.950227f * blue};
}

/// Amounts of red, green and blue light, not encoded yet and not clamped.
inline Triple xyzToLight(const Triple &xyz)
{
    const float x = xyz[0] / 100.0f;
    const float y = xyz[1] / 100.0f;
    const float z = xyz[2] / 100.0f;
    return {3.240479f * x - 1.53715f * y - 0.498535f * z,
            -0.969256f * x + 1.875992f * y + 0.041556f * z,
            0.055648f * x - 0.204043f * y + 1.057311f * z};
}

/// Always within 0 to 1: what RGB can't show is clamped channel by channel, and what isn't a
/// number becomes 0.
inline Triple xyzToRgb(const Triple &xyz)
{
    const Triple light = xyzToLight(xyz);
    return {encoded(light[0]), encoded(light[1]), encoded(light[2])};
}

inline Triple xyzToLab(const Triple &xyz)
{
    const float x = labRoot(xyz[0] / white[0]);
    const float y = labRoot(xyz[1] / white[1]);
    const float z = labRoot(xyz[2] / white[2]);
    return {116.0f * y - 16.0f, 500.0f * (x - y), 200.0f * (y - z)};
}

inline Triple labToXyz(const Triple &lab)
{
    const float y = (lab[0] + 16.0f) / 116.0f;
    const float x = lab[1] / 500.0f + y;
    const float z = y - lab[2] / 200.0f;
    return {labCube(x) * white[0], labCube(y) * white[1], labCube(z) * white[2]};
}

/// XYZ of a black body of this temperature in kelvin, with Y = 50. Black (0, 0, 0) for a body too
/// cold to radiate a number, for temperatures that aren't above 0 and for what isn't a number.
ZELCORE_EXPORT Triple blackBodyToXyz(float kelvin);

/// Correlated colour temperature in kelvin by Robertson's method; 0 for black and for colours that
/// none of the isotemperature lines (1667 K and up) meets.
ZELCORE_EXPORT float temperature(const Triple &xyz);

} // namespace ZelColorMath
