#include "color/ZelColorStrip.h"

#include <ZelCore/ZelColorMath>
#include <ZelCore/ZelGammaPolicy>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

using ZelColorChannel::Mode;
using ZelColorChannel::Range;
using ZelColorMath::Quad;
using ZelColorMath::Triple;

namespace {

constexpr int byteSamples = 256;
constexpr int hueSamples = 360;
constexpr int percentSamples = 100;
constexpr int opponentSamples = 255;
constexpr float opponentStart = -128.0f;
constexpr float byteStep = 0.003921569f;
constexpr float percentStep = 0.01f;

/// The byte of each channel from 0 to 1 raised to an exponent: exactly what std::pow() and
/// truncation give, from a table of the least channel of each byte.
class RaisedBytes
{
public:
    explicit RaisedBytes(float exponent)
        : exponent_(exponent)
    {
        for (uint byte = 0; byte < least_.size(); ++byte)
            least_[byte] = leastOf(byte);
        for (uint i = 0; i < first_.size(); ++i)
            first_[i] = uchar(raised(float(i) / float(parts)));
    }

    float exponent() const { return exponent_; }

    uchar of(float channel) const
    {
        uint byte = first_[uint(channel * float(parts))];
        while (byte < 255 && least_[byte + 1] <= channel)
            ++byte;
        return uchar(byte);
    }

private:
    static constexpr uint parts = 4096;

    uint raised(float channel) const { return uint(std::pow(channel, exponent_) * 255.0f); }

    /// Floats from 0 to 1 are ordered as their bits are.
    float leastOf(uint byte) const
    {
        uint32_t below = 0;
        uint32_t enough = std::bit_cast<uint32_t>(1.0f);
        while (below < enough) {
            const uint32_t middle = (below + enough) / 2;
            if (raised(std::bit_cast<float>(middle)) >= byte)
                enough = middle;
            else
                below = middle + 1;
        }
        return std::bit_cast<float>(enough);
    }

    float exponent_;
    std::array<float, 256> least_;
    std::array<uchar, parts + 1> first_;
};

const RaisedBytes &raisedBytes(float exponent)
{
    thread_local RaisedBytes bytes(exponent);
    if (bytes.exponent() != exponent)
        bytes = RaisedBytes(exponent);
    return bytes;
}

/// Turns colours into bytes. A channel that stays as it was in the sample before, as most do along
/// a strip, is not looked up again.
class Encoder
{
public:
    explicit Encoder(float exponent)
        : raised_(exponent == 1.0f ? nullptr : &raisedBytes(exponent))
    {}

    void write(const Triple &rgb, uchar *pixel)
    {
        for (size_t i = 0; i < rgb.size(); ++i) {
            if (rgb[i] != channels_[i]) {
                channels_[i] = rgb[i];
                bytes_[i] = byte(rgb[i]);
            }
            pixel[i] = bytes_[i];
        }
    }

private:
    uchar byte(float channel) const
    {
        const float shown = channel > 0.0f ? std::min(channel, 1.0f) : 0.0f;
        return raised_ ? raised_->of(shown) : uchar(shown * 255.0f);
    }

    static constexpr float none = std::numeric_limits<float>::quiet_NaN();
    const RaisedBytes *raised_;
    Triple channels_ = {none, none, none};
    std::array<uchar, 3> bytes_ = {};
};

/// The last sample is repeated where the strip is wider than there are samples.
template <typename Sample>
QImage strip(int width, int samples, float exponent, Sample &&sample)
{
    QImage image(width, 1, QImage::Format_RGB888);
    if (image.isNull())
        return image;
    Encoder encoder(exponent);
    uchar *pixel = image.scanLine(0);
    for (int i = 0; i < width; ++i, pixel += 3)
        encoder.write(sample(std::min(i, samples - 1)), pixel);
    return image;
}

QImage channelStrip(const Triple &rgb, size_t index, float exponent)
{
    return strip(byteSamples, byteSamples, exponent, [&](int i) {
        const float value = float(i) * byteStep;
        return Triple{index == 0 ? value : rgb[0], index == 1 ? value : rgb[1],
                      index == 2 ? value : rgb[2]};
    });
}

QImage hueStrip(Triple hsv, float exponent)
{
    return strip(hueSamples, hueSamples, exponent, [&](int i) {
        hsv[0] = float(i);
        return ZelColorMath::hsvToRgb(hsv);
    });
}

QImage hsvStrip(Triple hsv, size_t index, float exponent)
{
    return strip(percentSamples, percentSamples, exponent, [&](int i) {
        hsv[index] = float(i) * percentStep;
        return ZelColorMath::hsvToRgb(hsv);
    });
}

QImage inkStrip(const Quad &cmyk, size_t index, float exponent)
{
    return strip(percentSamples, percentSamples, exponent, [&](int i) {
        const float ink = float(i) * percentStep;
        return ZelColorMath::cmykToRgb({index == 0 ? ink : cmyk[0], index == 1 ? ink : cmyk[1],
                                        index == 2 ? ink : cmyk[2], index == 3 ? ink : cmyk[3]});
    });
}

QImage greyStrip(float exponent)
{
    return strip(byteSamples, byteSamples, exponent, [](int i) {
        const float grey = float(i) * byteStep;
        return Triple{grey, grey, grey};
    });
}

QImage labStrip(Triple lab, size_t index, float exponent)
{
    const bool isLightness = index == 0;
    const float start = isLightness ? 0.0f : opponentStart;
    return strip(isLightness ? percentSamples : byteSamples,
                 isLightness ? percentSamples : opponentSamples, exponent, [&](int i) {
                     lab[index] = start + float(i);
                     return ZelColorMath::xyzToRgb(ZelColorMath::labToXyz(lab));
                 });
}

using Temperatures = std::array<Triple, percentSamples>;

Temperatures radiated(Range range)
{
    const float step = (float(range.maximum) - float(range.minimum)) / float(percentSamples);
    Temperatures colors;
    for (int i = 0; i < percentSamples; ++i) {
        const float kelvin = float(range.minimum) + float(i) * step;
        colors[size_t(i)] = ZelColorMath::xyzToRgb(ZelColorMath::blackBodyToXyz(kelvin));
    }
    return colors;
}

/// The colours of a range never change, and hardly ever does the range.
QImage temperatureStrip(Range range, float exponent)
{
    thread_local Range known = range;
    thread_local Temperatures colors = radiated(range);
    if (known.minimum != range.minimum || known.maximum != range.maximum) {
        known = range;
        colors = radiated(range);
    }
    return strip(percentSamples, percentSamples, exponent, [](int i) { return colors[size_t(i)]; });
}

} // namespace

QImage ZelColorStrip::image(Mode mode, const ZelColor &color, float exponent, Range temperatures)
{
    switch (mode) {
    case Mode::Red:
    case Mode::Green:
    case Mode::Blue:
        return channelStrip(color.toRGB(), size_t(mode), exponent);
    case Mode::Hue:
        return hueStrip(color.toHSV(), exponent);
    case Mode::Saturation:
    case Mode::Value:
        return hsvStrip(color.toHSV(), size_t(mode) - size_t(Mode::Hue), exponent);
    case Mode::Cyan:
    case Mode::Magenta:
    case Mode::Yellow:
    case Mode::Black:
        return inkStrip(color.toCMYK(), size_t(mode) - size_t(Mode::Cyan), exponent);
    case Mode::Brightness:
        return greyStrip(exponent);
    case Mode::LabL:
    case Mode::LabA:
    case Mode::LabB:
        return labStrip(color.toLab(), size_t(mode) - size_t(Mode::LabL), exponent);
    case Mode::Temperature:
        return temperatureStrip(temperatures, exponent);
    }
    return strip(1, 1, exponent, [rgb = color.toRGB()](int) { return rgb; });
}

QImage ZelColorStrip::hues(float exponent)
{
    const QImage row = hueStrip({0.0f, 1.0f, 1.0f}, exponent);
    QImage image(2, hueSamples, QImage::Format_RGB888);
    if (image.isNull() || row.isNull())
        return image;
    const uchar *hue = row.constScanLine(0) + 3 * (hueSamples - 1);
    for (int y = 0; y < hueSamples; ++y, hue -= 3) {
        uchar *pixels = image.scanLine(y);
        std::copy_n(hue, 3, pixels);
        std::copy_n(hue, 3, pixels + 3);
    }
    return image;
}

float ZelColorStrip::exponent(bool areDisplayValues)
{
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    return policy->isGammaCorrectionEnabled() && !areDisplayValues ? policy->getInvGamma() : 1.0f;
}
