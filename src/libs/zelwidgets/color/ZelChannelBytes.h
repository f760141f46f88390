#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>

/// The byte that shows a channel, for a curve that never falls: exactly what the curve times 255,
/// truncated, gives, without the curve's powers for each channel. The least channel of each byte is
/// found once, and a channel is compared with those near it.
class ZelChannelBytes
{
public:
    using Curve = float (*)(float channel, float exponent);

    ZelChannelBytes(Curve curve, float exponent);

    /// The table of a channel raised to the exponent.
    static const ZelChannelBytes &raised(float exponent);
    /// The table of an amount of light that is encoded as sRGB and then raised to the exponent.
    static const ZelChannelBytes &encoded(float exponent);

    /// What lies below 0 or isn't a number is 0.
    uchar of(float channel) const
    {
        const float shown = channel > 0.0f ? std::min(channel, most) : 0.0f;
        std::size_t byte = first_[std::size_t(shown * float(parts))];
        while (byte < 255 && least_[byte + 1] <= shown)
            ++byte;
        return uchar(byte);
    }

private:
    /// A curve may reach its top a little above 1.
    static constexpr float most = 2.0f;
    static constexpr std::size_t parts = 4096;

    static const ZelChannelBytes &kept(ZelChannelBytes &table, float exponent);
    uint byteAt(float channel) const;
    float leastOf(uint byte) const;

    Curve curve_;
    float exponent_;
    std::array<float, 256> least_;
    std::array<uchar, std::size_t(most) * parts + 1> first_;
};
