// Whatever a settings file holds is read or refused, and what is read is written so that it comes
// back the same.

#include "ZelSettingsFormat.h"

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto content =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    QSettings::SettingsMap first;
    if (!ZelSettingsFormat::parse(content, first).isEmpty())
        return 0;
    const QByteArray written = ZelSettingsFormat::compose(first);
    QSettings::SettingsMap second;
    if (!ZelSettingsFormat::parse(written, second).isEmpty() ||
        ZelSettingsFormat::compose(second) != written)
        std::abort();
    return 0;
}
