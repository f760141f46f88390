#include "IconColorKey.h"

ColorEntry ColorEntry::fromKey(const QString &key, const QString &color)
{
    const QString name = key.toLower().trimmed();
    ColorEntry entry;
    entry.color = color;
    if (name.contains(QLatin1String("_inactive")))
        entry.state = QIcon::Off;
    if (name.contains(QLatin1String("_active")))
        entry.state = QIcon::On;
    if (name.contains(QLatin1String("_hover")))
        entry.mode = QIcon::Active;
    if (name.contains(QLatin1String("_normal")))
        entry.mode = QIcon::Normal;
    if (name.contains(QLatin1String("_disabled")))
        entry.mode = QIcon::Disabled;
    if (name.contains(QLatin1String("_selected")))
        entry.mode = QIcon::Selected;
    return entry;
}

ColorKey::ColorKey(const QString &key)
    : key(key)
    , base(baseName(key))
    , suffixed(key.toLower() != base)
{}

QString ColorKey::baseName(const QString &key)
{
    QString base = key.toLower();
    for (const char *suffix :
         {"_inactive", "_active", "_hover", "_normal", "_disabled", "_selected"}) {
        base.remove(QLatin1String(suffix));
    }
    return base;
}
