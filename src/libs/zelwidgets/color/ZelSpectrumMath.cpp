#include "ZelSpectrumMath.h"

#include "ZelChannelBytes.h"

#include <ZelCore/ZelColorMath>

#include <algorithm>
#include <array>

namespace {

constexpr float byteRange = 255.0f;
constexpr int darkest = 12800;

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
    const ZelChannelBytes &raised = ZelChannelBytes::raised(exponent);
    return imageOf(factors, [&raised](float channel) { return raised.of(channel); });
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
