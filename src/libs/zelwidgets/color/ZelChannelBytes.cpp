#include "color/ZelChannelBytes.h"

#include <ZelCore/ZelColorMath>

#include <bit>
#include <cmath>
#include <cstdint>

namespace {

float power(float channel, float exponent)
{
    return std::pow(channel, exponent);
}

float encodedPower(float light, float exponent)
{
    return power(ZelColorMath::encoded(light), exponent);
}

} // namespace

ZelChannelBytes::ZelChannelBytes(Curve curve, float exponent)
    : curve_(curve)
    , exponent_(exponent)
{
    for (uint byte = 0; byte < least_.size(); ++byte)
        least_[byte] = leastOf(byte);
    std::size_t byte = 0;
    for (std::size_t i = 0; i < first_.size(); ++i) {
        while (byte < 255 && least_[byte + 1] <= float(i) / float(parts))
            ++byte;
        first_[i] = uchar(byte);
    }
}

const ZelChannelBytes &ZelChannelBytes::raised(float exponent)
{
    thread_local ZelChannelBytes table(&power, exponent);
    return kept(table, exponent);
}

const ZelChannelBytes &ZelChannelBytes::encoded(float exponent)
{
    thread_local ZelChannelBytes table(&encodedPower, exponent);
    return kept(table, exponent);
}

const ZelChannelBytes &ZelChannelBytes::kept(ZelChannelBytes &table, float exponent)
{
    if (table.exponent_ != exponent)
        table = ZelChannelBytes(table.curve_, exponent);
    return table;
}

uint ZelChannelBytes::byteAt(float channel) const
{
    return std::min(uint(curve_(channel, exponent_) * 255.0f), 255u);
}

/// Floats from 0 up are ordered as their bits are.
float ZelChannelBytes::leastOf(uint byte) const
{
    uint32_t below = 0;
    uint32_t enough = std::bit_cast<uint32_t>(most);
    while (below < enough) {
        const uint32_t middle = below + (enough - below) / 2;
        if (byteAt(std::bit_cast<float>(middle)) >= byte)
            enough = middle;
        else
            below = middle + 1;
    }
    return std::bit_cast<float>(enough);
}
