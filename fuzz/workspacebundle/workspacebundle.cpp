// Whatever is in a bundle of factory workspaces is read whole or refused with a reason.

#include "quiet.h"

#include "workspace/WorkSpaceDefaultsPrivate.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError error;
    const auto bundle =
        WorkSpaceDefaultsPrivate::loadBundleFromFile({QStringLiteral("zelmora9.1.json"),
                                                      [bytes] {
                                                          return bytes;
                                                      }},
                                                     error);
    const bool isGood = error.code == 0;
    require(isGood == error.message.isEmpty());
    require(isGood ? bundle.major == 9 && bundle.minor == 1
                   : bundle.major == -1 && bundle.entries.isEmpty());
    for (auto entry = bundle.entries.cbegin(); entry != bundle.entries.cend(); ++entry)
        require(entry->id == entry.key());
    return 0;
}
