#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>
#include <QVariant>

/// Reading and writing of settings by keys that hold their group in front of a dot: "ui.FontSize".
/// Code that takes one works on the store as well as on any other place.
class ZELCORE_EXPORT ZelSettingsIO
{
public:
    virtual ~ZelSettingsIO();

    virtual QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const = 0;
    virtual void setValue(const QString &key, const QVariant &value,
                          const QString &comment = QString()) = 0;
};

/// The application's settings store.
class ZELCORE_EXPORT ZelStoreSettingsIO : public ZelSettingsIO
{
public:
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const override;
    void setValue(const QString &key, const QVariant &value,
                  const QString &comment = QString()) override;
};
