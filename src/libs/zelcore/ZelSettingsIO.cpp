#include "ZelSettingsIO.h"

#include "ZelSettings.h"

ZelSettingsIO::~ZelSettingsIO() = default;

QVariant ZelStoreSettingsIO::value(const QString &key, const QVariant &defaultValue) const
{
    return ZelSettings().value(key, defaultValue);
}

void ZelStoreSettingsIO::setValue(const QString &key, const QVariant &value, const QString &comment)
{
    ZelSettings().setValue(key, value, comment);
}
