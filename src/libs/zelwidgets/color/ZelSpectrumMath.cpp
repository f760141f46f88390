#include "ZelSpectrumMath.h"

#include <ZelCore/ZelColorMath>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr float byteRange = 255.0f;
constexpr int darkest = 12800;

int truncatedPower(float channel, float exponent)
{
    return int(std::pow(channel, exponent) * byteRange);
}

/// The bytes of a power function over 0 to 1 without a power for each: the numbers at which the
/// byte rises are found once, and a number is compared with those near it.
class PowerBytes
{
public:
    explicit PowerBytes(float exponent)
    {
        for (int byte = 0; byte <= 255; ++byte)
            rises_[std::size_t(byte)] = firstOf(byte, exponent);
        rises_[256] = std::numeric_limits<float>::infinity();
        std::size_t byte = 0;
        for (std::size_t i = 0; i < starts_.size(); ++i) {
            byte = raised(byte, float(i) / float(buckets));
            starts_[i] = uchar(byte);
        }
    }

    uchar operator()(float channel) const
    {
        return uchar(raised(starts_[std::size_t(channel * float(buckets))], channel));
    }

private:
    static constexpr int buckets = 8192;

    std::size_t raised(std::size_t byte, float channel) const
    {
        while (channel >= rises_[byte + 1])
            ++byte;
        return byte;
    }

    /// The smallest number that gives the byte or a larger one. Floats from 0 up are in the order
    /// of their bits.
    static float firstOf(int byte, float exponent)
    {
        std::uint32_t low = 0;
        auto high = std::bit_cast<std::uint32_t>(1.0f);
        while (low < high) {
            const std::uint32_t middle = low + (high - low) / 2;
            if (truncatedPower(std::bit_cast<float>(middle), exponent) >= byte)
                high = middle;
            else
                low = middle + 1;
        }
        return std::bit_cast<float>(low);
    }

    std::array<float, 257> rises_;
    std::array<uchar, buckets + 1> starts_;
};

using Factors = std::array<float, 3 * ZelSpectrumMath::planeSize>;

/// The channels of a column are its channels at full value times the value of the row.
Factors columnFactors(float hue)
{
    Factors factors;
    auto out = factors.begin();
    for (int column = 0; column < ZelSpectrumMath::planeSize; ++column) {
        const float saturation = float(column) / byteRange;
        const ZelColorMath::Triple rgb = ZelColorMath::hsvToRgb({hue, saturation, 1.0f});
        out = std::copy(rgb.begin(), rgb.end(), out);
    }
    return factors;
}

template <typename ToByte>
QImage imageOf(const Factors &factors, ToByte &&toByte)
{
    using ZelSpectrumMath::planeSize;
    QImage image(planeSize, planeSize, QImage::Format_RGB888);
    for (int row = 0; row < planeSize; ++row) {
        const float value = float(planeSize - 1 - row) / byteRange;
        uchar *line = image.scanLine(row);
        for (std::size_t i = 0; i < factors.size(); ++i)
            line[i] = toByte(factors[i] * value);
    }
    return image;
}

/// What isn't a number is 0.
float clamped(float part)
{
    return part > 0.0f ? std::min(part, 1.0f) : 0.0f;
}

float partOf(qreal position, int length)
{
    return length > 1 ? clamped(float(position) / float(length - 1)) : 0.0f;
}

} // namespace

QImage ZelSpectrumMath::plane(float hue, float exponent)
{
    const Factors factors = columnFactors(hue);
    if (exponent == 1.0f)
        return imageOf(factors, [](float channel) { return uchar(int(channel * byteRange)); });
    return imageOf(factors, PowerBytes(exponent));
}

ZelSpectrumMath::SaturationValue ZelSpectrumMath::at(QPointF point, QSize field)
{
    return {partOf(point.x(), field.width()), 1.0f - partOf(point.y(), field.height())};
}

QPoint ZelSpectrumMath::pointOf(SaturationValue part, QSize field)
{
    return {qRound(float(field.width()) * clamped(part.saturation)),
            qRound((1.0f - clamped(part.value)) * float(field.height()))};
}

QColor ZelSpectrumMath::markerColor(const QColor &ground)
{
    const int brightness = ground.red() * 30 + ground.green() * 59 + ground.blue() * 11;
    return brightness <= darkest ? Qt::white : Qt::black;
}
