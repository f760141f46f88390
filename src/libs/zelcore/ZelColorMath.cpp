#include "ZelColorMath.h"

namespace {

using ZelColorMath::Triple;

constexpr Triple white = {95.047f, 100.0f, 108.883f};

float decoded(float channel)
{
    return channel > 0.04045f ? std::pow((channel + 0.055f) / 1.055f, 2.4f) : channel / 12.92f;
}

float encoded(float channel)
{
    const float value =
        channel > 0.0031308f ? std::pow(channel, 0.41666666f) * 1.055f - 0.055f : channel * 12.92f;
    // Written so that what isn't a number ends at 0.
    return value > 0.0f ? std::min(value, 1.0f) : 0.0f;
}

float labRoot(float ratio)
{
    return ratio > 0.008856f ? std::pow(ratio, 0.33333334f) : 7.787f * ratio + 0.13793103f;
}

float labCube(float root)
{
    const float cube = root * root * root;
    return cube > 0.008856f ? cube : (root - 0.13793103f) / 7.787f;
}

} // namespace

Triple ZelColorMath::rgbToXyz(const Triple &rgb)
{
    const float red = decoded(rgb[0]) * 100.0f;
    const float green = decoded(rgb[1]) * 100.0f;
    const float blue = decoded(rgb[2]) * 100.0f;
    return {0.412453f * red + 0.35758f * green + 0.180423f * blue,
            0.212671f * red + 0.71516f * green + 0.072169f * blue,
            0.019334f * red + 0.119193f * green + 0.950227f * blue};
}

Triple ZelColorMath::xyzToRgb(const Triple &xyz)
{
    const float x = xyz[0] / 100.0f;
    const float y = xyz[1] / 100.0f;
    const float z = xyz[2] / 100.0f;
    return {encoded(3.240479f * x - 1.53715f * y - 0.498535f * z),
            encoded(-0.969256f * x + 1.875992f * y + 0.041556f * z),
            encoded(0.055648f * x - 0.204043f * y + 1.057311f * z)};
}

Triple ZelColorMath::xyzToLab(const Triple &xyz)
{
    const float x = labRoot(xyz[0] / white[0]);
    const float y = labRoot(xyz[1] / white[1]);
    const float z = labRoot(xyz[2] / white[2]);
    return {116.0f * y - 16.0f, 500.0f * (x - y), 200.0f * (y - z)};
}

Triple ZelColorMath::labToXyz(const Triple &lab)
{
    const float y = (lab[0] + 16.0f) / 116.0f;
    const float x = lab[1] / 500.0f + y;
    const float z = y - lab[2] / 200.0f;
    return {labCube(x) * white[0], labCube(y) * white[1], labCube(z) * white[2]};
}
