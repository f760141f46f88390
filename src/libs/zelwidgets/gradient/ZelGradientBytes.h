#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

using uchar = unsigned char;

/// From channels to bytes in the way of QColor: rounded to 16 bits, and these divided by 257
/// and rounded.
class ZelGradientBytes
{
public:
    explicit ZelGradientBytes(float exponent);

    /// What is no number is 0.
    static float atLeast0(float channel) { return 0.0f < channel ? channel : 0.0f; }
    static float atMost1(float channel) { return channel < 1.0f ? channel : 1.0f; }

    /// Of a channel from 0 to 1.
    static int plain(float channel)
    {
        const int wide = int(channel * 65535.0f + 0.5f) + 128;
        return (wide - (wide >> 8)) >> 8;
    }

    float exponent() const { return exponent_; }

    /// Of a channel from 0 to 1 raised to the exponent: exactly what std::pow() gives, from a
    /// table.
    int raised(float channel) const
    {
        int byte = first_[std::bit_cast<uint32_t>(channel) >> cellBits];
        while (channel >= least_[size_t(byte) + 1])
            ++byte;
        return byte;
    }

    /// The table of this exponent; it is kept as long as the exponent stays.
    static const ZelGradientBytes &of(float exponent);

private:
    static constexpr uint32_t oneBits = std::bit_cast<uint32_t>(1.0f);
    static constexpr uint32_t cellBits = 15;

    float leastOf(int byte) const;

    float exponent_;
    /// The least channel that gives the byte, and behind them one that no channel reaches.
    std::array<float, 257> least_;
    /// The byte of the least channel of each cell, a cell being the channels of equal upper bits.
    std::array<uchar, (oneBits >> cellBits) + 1> first_;
};
