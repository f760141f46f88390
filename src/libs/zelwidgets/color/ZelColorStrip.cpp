#include "color/ZelColorStrip.h"

#include "color/ZelChannelBytes.h"

#include <ZelCore/ZelColorMath>
#include <ZelCore/ZelGammaPolicy>

#include <array>
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

/// Turns colours into bytes. A channel that stays as it was in the sample before, as most do along
/// a strip, is not looked up again.
class Encoder
{
public:
    /// For RGB colours.
    explicit Encoder(float exponent)
        : bytesOf_(exponent == 1.0f ? nullptr : &ZelChannelBytes::raised(exponent))
    {}
    explicit Encoder(const ZelChannelBytes &bytesOf)
        : bytesOf_(&bytesOf)
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
        if (bytesOf_)
            return bytesOf_->of(channel);
        return channel > 0.0f ? uchar(std::min(channel, 1.0f) * 255.0f) : uchar(0);
    }

    static constexpr float none = std::numeric_limits<float>::quiet_NaN();
    const ZelChannelBytes *bytesOf_;
    Triple channels_ = {none, none, none};
    std::array<uchar, 3> bytes_ = {};
};

/// The last sample is repeated where the strip is wider than there are samples.
template <typename Sample>
QImage strip(int width, int samples, Encoder encoder, Sample &&sample)
{
    QImage image(width, 1, QImage::Format_RGB888);
    if (image.isNull())
        return image;
    uchar *pixel = image.scanLine(0);
    for (int i = 0; i < width; ++i, pixel += 3)
        encoder.write(sample(std::min(i, samples - 1)), pixel);
    return image;
}

QImage channelStrip(const Triple &rgb, size_t index, float exponent)
{
    return strip(byteSamples, byteSamples, Encoder(exponent), [&](int i) {
        const float value = float(i) * byteStep;
        return Triple{index == 0 ? value : rgb[0], index == 1 ? value : rgb[1],
                      index == 2 ? value : rgb[2]};
    });
}

QImage hueStrip(Triple hsv, float exponent)
{
    return strip(hueSamples, hueSamples, Encoder(exponent), [&](int i) {
        hsv[0] = float(i);
        return ZelColorMath::hsvToRgb(hsv);
    });
}

QImage hsvStrip(Triple hsv, size_t index, float exponent)
{
    return strip(percentSamples, percentSamples, Encoder(exponent), [&](int i) {
        hsv[index] = float(i) * percentStep;
        return ZelColorMath::hsvToRgb(hsv);
    });
}

QImage inkStrip(const Quad &cmyk, size_t index, float exponent)
{
    return strip(percentSamples, percentSamples, Encoder(exponent), [&](int i) {
        const float ink = float(i) * percentStep;
        return ZelColorMath::cmykToRgb({index == 0 ? ink : cmyk[0], index == 1 ? ink : cmyk[1],
                                        index == 2 ? ink : cmyk[2], index == 3 ? ink : cmyk[3]});
    });
}

QImage greyStrip(float exponent)
{
    return strip(byteSamples, byteSamples, Encoder(exponent), [](int i) {
        const float grey = float(i) * byteStep;
        return Triple{grey, grey, grey};
    });
}

QImage labStrip(Triple lab, size_t index, float exponent)
{
    const bool isLightness = index == 0;
    const float start = isLightness ? 0.0f : opponentStart;
    return strip(isLightness ? percentSamples : byteSamples,
                 isLightness ? percentSamples : opponentSamples,
                 Encoder(ZelChannelBytes::encoded(exponent)), [&](int i) {
                     lab[index] = start + float(i);
                     return ZelColorMath::xyzToLight(ZelColorMath::labToXyz(lab));
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
    return strip(percentSamples, percentSamples, Encoder(exponent),
                 [](int i) { return colors[size_t(i)]; });
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
    return strip(1, 1, Encoder(exponent), [rgb = color.toRGB()](int) { return rgb; });
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
