// Whatever a .ggr file holds becomes stops from 0 to 1 or is refused with a reason.

#include "quiet.h"

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientGgr>

#include <algorithm>
#include <cmath>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    catchMessages();
    const QByteArray content(reinterpret_cast<const char *>(data), qsizetype(size));
    ZelGradient gradient(ZelGradient::Alpha);
    const ZelGradientStop before = gradient.addColorStop(0.5F, ZelColor());
    QString error;
    if (!ZelGradientGgr::read(content, gradient, nullptr, &error)) {
        require(before && gradient.stops() == 1 && !error.isEmpty());
        return 0;
    }
    require(before.isNull() && std::is_sorted(gradient.begin(), gradient.end()));
    const int count = gradient.colorStops();
    require(count >= 2 && gradient.colorStop(0).location() == 0 &&
            gradient.colorStop(count - 1).location() == 1);
    require(gradient.alphaStops() <= count * 2);
    for (int i = 0; i <= 16; ++i) {
        for (const float channel : gradient.computeColor(float(i) / 16).toRGB())
            require(std::isfinite(channel));
        require(std::isfinite(gradient.computeAlpha(float(i) / 16)));
    }
    require(gradient.paint(33).width() == 33);
    return 0;
}
