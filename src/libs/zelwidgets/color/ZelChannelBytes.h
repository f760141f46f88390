#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

/// The byte that shows a channel, for a curve that never falls: exactly what the curve times 255,
/// truncated, gives, without the curve's powers for each channel. The least channel of each byte is
/// found once. The upper bits of a channel, which as a number above 0 is ordered as its bits are,
/// lead to a byte from which the right one is seldom more than one away.
class ZelChannelBytes
{
public:
    using Curve = float (*)(float channel, float exponent);
    using Channels = std::array<float, 256>;
    using Bytes = std::array<uchar, 256>;

    ZelChannelBytes(Curve curve, float exponent);

    /// The table of a channel raised to the exponent.
    static const ZelChannelBytes &raised(float exponent);
    /// The table of an amount of light that is encoded as sRGB and then raised to the exponent.
    static const ZelChannelBytes &encoded(float exponent);

    /// What lies below 0 or isn't a number is 0.
    uchar of(float channel) const
    {
        const float shown = channel > under_ ? std::min(channel, least_[255]) : under_;
        std::size_t byte = first_[(std::bit_cast<uint32_t>(shown) >> shift_) - skipped_];
        for (int step = 0; step < steps_; ++step)
            byte += std::size_t(least_[byte + 1] <= shown);
        return uchar(byte);
    }
    /// The bytes of many channels, faster than one by one.
    Bytes of(const Channels &channels) const;

private:
    static const ZelChannelBytes &kept(ZelChannelBytes &table, float exponent);
    uint byteAt(float channel) const;
    float leastOf(uint byte) const;
    void divide();
    Curve curve_;
    float exponent_;
    /// The least channel of each byte; none reaches the last entry.
    std::array<float, 257> least_;
    /// The greatest channel that is 0.
    float under_ = 0.0f;
    /// The range of channels that aren't all 0 or all 255 is divided into parts of 2 to the power
    /// of the shift floats each; these are the bytes that the parts begin with.
    std::vector<uchar> first_;
    uint32_t shift_ = 0;
    uint32_t skipped_ = 0;
    /// How many bytes a part may lead on at most.
    int steps_ = 0;
};
