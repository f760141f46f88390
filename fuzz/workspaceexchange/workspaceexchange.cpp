// Whatever is in a file of exchanged workspaces is read or refused, and what is read is written so
// that it comes back the same.

#include "quiet.h"

#include "workspace/WorkSpaceExchange.h"
#include "workspace/WorkSpaceNames.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto first = WorkSpaceExchange::read(text);
    if (!first)
        return 0;
    require(first->size() <= qsizetype(size) / 4);
    const QByteArray once = WorkSpaceExchange::write(*first);
    const auto second = WorkSpaceExchange::read(once);
    require(second && *second == *first);
    QStringList names;
    for (qsizetype i = 0; i < qMin<qsizetype>(first->size(), 50); ++i) {
        const QString name = WorkSpaceNames::importedName((*first)[i].name, names);
        require(!name.trimmed().isEmpty() && !names.contains(name));
        require(name.size() <= WorkSpaceNames::maximumLength);
        names.append(name);
    }
    return 0;
}
