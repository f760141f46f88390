// Colour texts: what is read is a colour in range, and its own texts are read back as the same.

#include "quiet.h"

#include "color/ZelColorText.h"

#include <cstdint>

namespace {

void requireReadBack(const QString &written, const QString &hex)
{
    const auto again = ZelColorText::read(written);
    require(again && ZelColorText::hex(*again) == hex);
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
    const QString hex = ZelColorText::hex(*color);
    requireReadBack(hex, hex);
    requireReadBack(ZelColorText::rgb(*color), hex);
    requireReadBack(ZelColorText::floats(*color), hex);
    return 0;
}
