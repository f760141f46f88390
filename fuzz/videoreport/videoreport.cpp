// Reports of a video program: what is read is in range, and progress doesn't depend on the pieces.

#include "quiet.h"

#include "ZelVideoReport.h"

#include <cmath>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));

    const ZelVideoReport report = ZelVideoReport::parse(text);
    require(report.seconds >= 0 && report.frameRate >= 0 && report.frameCount() >= 0);
    require(report.isVideo() == (!report.durationText.isEmpty() && report.resolution.width() > 0 &&
                                 report.resolution.height() > 0));

    ZelFrameProgress whole;
    whole.feed(text);
    require(whole.frame() >= -1);
    const qsizetype length = size > 0 ? 1 + data[size - 1] % 16 : 1;
    ZelFrameProgress pieces;
    for (qsizetype i = 0; i < text.size(); i += length) {
        pieces.feed(text.mid(i, length));
        require(pieces.frame() >= -1);
    }
    require(pieces.frame() == whole.frame());
    return 0;
}
