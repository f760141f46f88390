#include "ZelSettings.h"

#include "ZelSettingsStore.h"

ZelSettings::ZelSettings(QString group)
    : group_(std::move(group))
{}

QString ZelSettings::group() const
{
    return group_;
}

QString ZelSettings::physicalKey(const QString &key) const
{
    return group_.isEmpty() ? key : group_ + QLatin1Char('.') + key;
}

QVariant ZelSettings::value(const QString &key, const QVariant &defaultValue) const
{
    return ZelSettingsStore::instance().value(physicalKey(key), defaultValue);
}

void ZelSettings::setValue(const QString &key, const QVariant &value, const QString &comment)
{
    ZelSettingsStore::instance().setValue(physicalKey(key), value, comment);
}

bool ZelSettings::hasKey(const QString &key) const
{
    return ZelSettingsStore::instance().contains(physicalKey(key));
}

void ZelSettings::removeKey(const QString &key)
{
    ZelSettingsStore::instance().remove(physicalKey(key));
}

QStringList ZelSettings::keys() const
{
    const QString prefix = physicalKey(QString());
    QStringList keys;
    const QStringList allKeys = ZelSettingsStore::instance().keys();
    for (const QString &key : allKeys) {
        if (key.startsWith(prefix))
            keys.append(key.mid(prefix.size()));
    }
    keys.sort();
    return keys;
}

ZelSettings::Reference ZelSettings::operator[](const QString &key)
{
    return Reference(*this, key);
}

bool ZelSettings::save()
{
    return ZelSettingsStore::instance().save();
}

void ZelSettings::setStorePath(const QString &path)
{
    ZelSettingsStore::instance().setPath(path);
}

QString ZelSettings::storePath()
{
    return ZelSettingsStore::instance().path();
}

ZelSettings::Reference::Reference(const ZelSettings &settings, const QString &key)
    : group_(settings.group_)
    , key_(key)
{}

ZelSettings::Reference::operator QVariant() const
{
    return ZelSettings(group_).value(key_);
}

ZelSettings::Reference &ZelSettings::Reference::operator=(const QVariant &value)
{
    ZelSettings(group_).setValue(key_, value);
    return *this;
}

ZelSettings::Reference &ZelSettings::Reference::operator=(const Reference &other)
{
    return *this = QVariant(other);
}
