// Whatever is stored as swatches is read as colours or dropped, within what the data can hold, and
// what is read is written so that it comes back the same.

#include "quiet.h"

#include "color/ZelSwatchStream.h"

#include <cmath>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto first = ZelSwatchStream::read(bytes);
    require(first.has_value() == (size >= 4));
    if (!first)
        return 0;
    require(first->colors.size() <= (size - 4) / 4);
    for (const ZelColor &color : first->colors) {
        for (const float number : color.components())
            require(std::isfinite(number));
    }
    const QByteArray once = ZelSwatchStream::write(first->colors);
    const auto second = ZelSwatchStream::read(once);
    require(second && second->isWhole && second->colors.size() == first->colors.size());
    require(ZelSwatchStream::write(second->colors) == once);
    return 0;
}
