// Colour texts: what is read is a colour in range, and its own texts are read back as the same.

#include "quiet.h"

#include "color/ZelColorText.h"

#include <cmath>
#include <cstdint>

namespace {

void requireReadBack(const QString &written, const ZelColor &color, float within)
{
    const auto again = ZelColorText::read(written);
    require(again.has_value());
    for (size_t i = 0; i < 3; ++i)
        require(std::abs(again->toRGB()[i] - color.toRGB()[i]) <= within);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    catchMessages();
    const auto color = ZelColorText::read(textOf(data, size));
    require(caughtMessages().isEmpty());
    if (!color)
        return 0;
    for (const float channel : color->toRGB())
        require(channel >= 0 && channel <= 1);
    constexpr float halfByte = 0.50001F / 255;
    constexpr float halfOfFourthPlace = 0.50002E-4F;
    requireReadBack(ZelColorText::hex(*color), *color, halfByte);
    requireReadBack(ZelColorText::rgb(*color), *color, halfByte);
    requireReadBack(ZelColorText::floats(*color), *color, halfOfFourthPlace);
    return 0;
}
