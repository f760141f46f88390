// Whatever a palette file holds is read as a palette or refused, and what is read is written so
// that it comes back the same.

#include "quiet.h"

#include "color/ZelGplPalette.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto first = ZelGplPalette::read(text);
    if (!first)
        return 0;
    require(size_t(first->entries.size()) <= size / 5);
    for (const auto &[color, name] : first->entries)
        require(color.isValid() && color.alpha() == 255 && !name.contains(u'\n'));
    const auto second = ZelGplPalette::read(first->write());
    require(second && second->entries == first->entries && second->title == first->title);
    return 0;
}
