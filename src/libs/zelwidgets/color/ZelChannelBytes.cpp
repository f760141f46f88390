#include "color/ZelChannelBytes.h"

#include <ZelCore/ZelColorMath>

#include <cmath>
#include <limits>
#include <tuple>

namespace {

/// A curve may reach its top a little above 1.
constexpr float most = 2.0f;
constexpr uint32_t mostParts = 1 << 14;

float power(float channel, float exponent)
{
    return std::pow(channel, exponent);
}

float encodedPower(float light, float exponent)
{
    return power(ZelColorMath::encoded(light), exponent);
}

uint32_t bitsOf(float channel)
{
    return std::bit_cast<uint32_t>(channel);
}

} // namespace

ZelChannelBytes::ZelChannelBytes(Curve curve, float exponent)
    : curve_(curve)
    , exponent_(exponent)
{
    least_[0] = 0.0f;
    for (uint byte = 1; byte < 256; ++byte)
        least_[byte] = leastOf(byte);
    least_[256] = std::numeric_limits<float>::infinity();
    divide();
}

/// As coarse as can be with one byte beginning in a part at most, as far as that is possible.
void ZelChannelBytes::divide()
{
    const uint32_t lowest = std::max(bitsOf(least_[1]), 1u) - 1;
    const uint32_t highest = bitsOf(least_[255]);
    under_ = std::bit_cast<float>(lowest);
    uint32_t narrowest = highest - lowest;
    for (std::size_t byte = 1; byte < 255; ++byte) {
        const uint32_t width = bitsOf(least_[byte + 1]) - bitsOf(least_[byte]);
        narrowest = width > 0 ? std::min(width, narrowest) : narrowest;
    }
    shift_ = uint32_t(std::bit_width(narrowest)) - 1;
    while ((highest >> shift_) - (lowest >> shift_) >= mostParts)
        ++shift_;
    skipped_ = lowest >> shift_;
    first_.resize((highest >> shift_) - skipped_ + 1);
    std::size_t byte = 0;
    for (std::size_t part = 0; part < first_.size(); ++part) {
        const std::size_t last = byte;
        const uint32_t start = (uint32_t(part) + skipped_) << shift_;
        while (byte < 255 && bitsOf(least_[byte + 1]) <= start)
            ++byte;
        first_[part] = uchar(byte);
        steps_ = std::max(steps_, int(byte - last));
    }
    steps_ = std::max(steps_, int(255 - byte));
}

ZelChannelBytes::Bytes ZelChannelBytes::of(const Channels &channels) const
{
    Bytes bytes;
    if (steps_ > 1) {
        std::transform(channels.begin(), channels.end(), bytes.begin(),
                       [this](float channel) { return of(channel); });
        return bytes;
    }
    // Apart from the searches and from the members, so that several channels are done at once.
    Channels shown;
    std::array<uint32_t, 256> parts;
    const auto [under, top, shift, skipped] = std::tuple(under_, least_[255], shift_, skipped_);
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const float channel = channels[i] > under ? channels[i] : under;
        shown[i] = channel < top ? channel : top;
        parts[i] = (bitsOf(shown[i]) >> shift) - skipped;
    }
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const std::size_t byte = first_[parts[i]];
        bytes[i] = uchar(byte + std::size_t(least_[byte + 1] <= shown[i]));
    }
    return bytes;
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
    const float shown = curve_(channel, exponent_) * 255.0f;
    return shown > 0.0f ? uint(std::min(shown, 255.0f)) : 0;
}

float ZelChannelBytes::leastOf(uint byte) const
{
    uint32_t below = 0;
    uint32_t enough = bitsOf(most);
    while (below < enough) {
        const uint32_t middle = below + (enough - below) / 2;
        if (byteAt(std::bit_cast<float>(middle)) >= byte)
            enough = middle;
        else
            below = middle + 1;
    }
    return std::bit_cast<float>(enough);
}
