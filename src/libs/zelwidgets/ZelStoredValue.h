#pragma once

#include <ZelCore/ZelSettings>

#include <QMetaType>

/// The value of the key as a T; the fallback if there is no such key, if it is empty, or if what
/// is stored there is of another type.
template <typename T>
T storedValue(const ZelSettings &settings, const QString &key, T fallback)
{
    if (key.isEmpty())
        return fallback;
    const QVariant stored = settings.value(key);
    return stored.metaType() == QMetaType::fromType<T>() ? stored.value<T>() : fallback;
}
