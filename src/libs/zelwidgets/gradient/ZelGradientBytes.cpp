#include "gradient/ZelGradientBytes.h"

#include <cmath>

ZelGradientBytes::ZelGradientBytes(float exponent)
    : exponent_(exponent)
{
    for (int byte = 0; byte < 256; ++byte)
        least_[size_t(byte)] = leastOf(byte);
    least_.back() = 2.0f;
    uchar byte = 0;
    for (uint32_t cell = 0; cell < first_.size(); ++cell) {
        while (std::bit_cast<float>(cell << cellBits) >= least_[size_t(byte) + 1])
            ++byte;
        first_[cell] = byte;
    }
}

/// By halving: floats from 0 to 1 are ordered as their bits are.
float ZelGradientBytes::leastOf(int byte) const
{
    uint32_t below = 0;
    uint32_t enough = oneBits;
    while (below < enough) {
        const uint32_t middle = (below + enough) / 2;
        if (plain(std::pow(std::bit_cast<float>(middle), exponent_)) >= byte)
            enough = middle;
        else
            below = middle + 1;
    }
    return std::bit_cast<float>(enough);
}

const ZelGradientBytes &ZelGradientBytes::of(float exponent)
{
    thread_local ZelGradientBytes bytes(exponent);
    if (bytes.exponent() != exponent)
        bytes = ZelGradientBytes(exponent);
    return bytes;
}
