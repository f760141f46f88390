// Whatever is stored as a workspace is read, within what the data can hold; what is read is
// written so that it comes back the same, and gives every dock a place in sight.

#include "quiet.h"

#include "workspace/WorkSpaceGeometry.h"
#include "workspace/WorkSpaceRecord.h"

#include <cstdint>

namespace {

const WorkSpaceGeometry::Screen screen{QRect(0, 0, 1920, 1080), QRect(0, 24, 1920, 1056)};

void checkPlaces(const WorkSpaceRecord &record)
{
    const auto targets = WorkSpaceGeometry::targetsOf(record, 1);
    for (const WorkSpaceGeometry::Target &target : targets) {
        const QRect placed = WorkSpaceGeometry::placed(target, {screen});
        require(placed.isEmpty() || placed.intersects(screen.available));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const WorkSpaceRecord first = WorkSpaceRecord::read(bytes);
    require(first.tornOutNames.size() <= qsizetype(size) / 4);
    require(first.tornOutRects.size() <= qsizetype(size) / 16);
    require(first.mainWindowState.size() <= qsizetype(size));
    checkPlaces(first);
    const QByteArray once = first.write();
    const WorkSpaceRecord second = WorkSpaceRecord::read(once);
    require(second.isValid && second.write() == once);
    return 0;
}
