// Whatever text is pasted is read as a gradient or refused with a reason, and what is read is
// written so that it comes back the same.

#include "quiet.h"

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientText>

#include <algorithm>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    catchMessages();
    ZelGradient gradient(ZelGradient::Alpha);
    const ZelGradientStop before = gradient.addColorStop(0.5F, ZelColor());
    QString error;
    if (!ZelGradientText::read(textOf(data, size), gradient, &error)) {
        require(before && gradient.stops() == 1 && !error.isEmpty());
        return 0;
    }
    require(before.isNull() && error.isEmpty());
    require(std::is_sorted(gradient.begin(), gradient.end()));
    for (const ZelGradientStop &stop : gradient)
        require(stop && stop.location() >= 0 && stop.location() <= 1);
    require(gradient.paint(33).width() == 33);

    const QString once = ZelGradientText::write(gradient);
    ZelGradient copy(ZelGradient::Alpha);
    require(ZelGradientText::read(once, copy, &error) && ZelGradientText::write(copy) == once);
    require(copy.paint(33) == gradient.paint(33));
    return 0;
}
