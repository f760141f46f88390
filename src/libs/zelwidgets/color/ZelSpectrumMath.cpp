#include "ZelSpectrumMath.h"

#include "ZelChannelBytes.h"

#include <ZelCore/ZelColorMath>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace {

constexpr float byteRange = 255.0f;
constexpr int darkest = 12800;

constexpr std::size_t side = ZelSpectrumMath::planeSize;
constexpr std::size_t channelCount = 3;

/// The channels of a column are its channels at full value times the value of the row.
ZelColorMath::Triple factorsOf(float hue, std::size_t column)
{
    return ZelColorMath::hsvToRgb({hue, float(column) / byteRange, 1.0f});
}

float valueOf(std::size_t row)
{
    return float(side - 1 - row) / byteRange;
}

QImage unfilled()
{
    return {int(side), int(side), QImage::Format_RGB888};
}

/// Four bytes as they lie in memory.
uint32_t word(uint32_t first, uint32_t second, uint32_t third, uint32_t fourth)
{
    if constexpr (std::endian::native == std::endian::little)
        return first | second << 8 | third << 16 | fourth << 24;
    else
        return first << 24 | second << 16 | third << 8 | fourth;
}

/// Four bytes at a time, from factors in four rows: so the compiler does as many words at once.
QImage linearPlane(float hue)
{
    constexpr std::size_t words = side * channelCount / 4;
    std::array<std::array<float, words>, 4> factors;
    for (std::size_t column = 0, at = 0; column < side; ++column) {
        for (const float factor : factorsOf(hue, column)) {
            factors[at % 4][at / 4] = factor;
            ++at;
        }
    }
    QImage image = unfilled();
    for (std::size_t row = 0; row < side; ++row) {
        const auto byte = [&factors, value = valueOf(row)](std::size_t place, std::size_t at) {
            return uint32_t(int(factors[place][at] * value * byteRange));
        };
        // The lines of a picture begin at whole words.
        auto *line = reinterpret_cast<uint32_t *>(image.scanLine(int(row)));
        for (std::size_t at = 0; at < words; ++at)
            line[at] = word(byte(0, at), byte(1, at), byte(2, at), byte(3, at));
    }
    return image;
}

using Bytes = ZelChannelBytes::Bytes;
using Factors = ZelChannelBytes::Channels;

/// Of a channel at full value. For each hue one has the greatest of these and one the least, in all
/// columns alike; only the third is the hue's own.
Factors greatest()
{
    Factors factors;
    factors.fill(1.0f);
    return factors;
}

Factors least()
{
    Factors factors;
    for (std::size_t column = 0; column < side; ++column)
        factors[column] = 1.0f - float(column) / byteRange;
    return factors;
}

std::array<Factors, channelCount> channelFactors(float hue)
{
    std::array<Factors, channelCount> factors;
    for (std::size_t column = 0; column < side; ++column) {
        const ZelColorMath::Triple rgb = factorsOf(hue, column);
        for (std::size_t channel = 0; channel < channelCount; ++channel)
            factors[channel][column] = rgb[channel];
    }
    return factors;
}

Bytes raisedRow(const ZelChannelBytes &raised, const Factors &factors, std::size_t row)
{
    Factors channels;
    std::transform(factors.begin(), factors.end(), channels.begin(),
                   [value = valueOf(row)](float factor) { return factor * value; });
    return raised.of(channels);
}

/// The rows of the least channel, kept until there is another exponent. The first column is grey,
/// so that it has the bytes of the greatest channel, too.
const std::vector<Bytes> &leastRows(const ZelChannelBytes &raised, float exponent)
{
    thread_local std::vector<Bytes> rows;
    thread_local float known = 0.0f;
    if (known != exponent) {
        rows.resize(side);
        for (std::size_t row = 0; row < side; ++row)
            rows[row] = raisedRow(raised, least(), row);
        known = exponent;
    }
    return rows;
}

QImage raisedPlane(float hue, float exponent)
{
    const ZelChannelBytes &raised = ZelChannelBytes::raised(exponent);
    const std::vector<Bytes> &leastBytes = leastRows(raised, exponent);
    const std::array<Factors, channelCount> factors = channelFactors(hue);
    enum Kind { Greatest, Least, Own };
    std::array<Kind, channelCount> kinds;
    std::transform(factors.begin(), factors.end(), kinds.begin(), [](const Factors &channel) {
        return channel == greatest() ? Greatest : channel == least() ? Least : Own;
    });
    QImage image = unfilled();
    std::array<Bytes, channelCount> bytes;
    for (std::size_t row = 0; row < side; ++row) {
        for (std::size_t channel = 0; channel < channelCount; ++channel) {
            if (kinds[channel] == Own)
                bytes[channel] = raisedRow(raised, factors[channel], row);
            else if (kinds[channel] == Least)
                bytes[channel] = leastBytes[row];
            else
                bytes[channel].fill(leastBytes[row].front());
        }
        uchar *line = image.scanLine(int(row));
        for (std::size_t column = 0; column < side; ++column) {
            for (const Bytes &channel : bytes)
                *line++ = channel[column];
        }
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
    return exponent == 1.0f ? linearPlane(hue) : raisedPlane(hue, exponent);
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
