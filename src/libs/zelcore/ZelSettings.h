#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>
#include <QStringList>
#include <QVariant>

/// A view of one group of the application's settings store.
///
/// The store is one human-readable JSON file that keeps the type of each value: bool, int, uint,
/// double, QString, QStringList, QVariantList, QByteArray, QSize, QSizeF and QRect come back as
/// what they were. Group and key are case-sensitive. The key in the file is the group, a dot and
/// the key, or the key alone in the unnamed group; so `ZelSettings("ui").value("FontSize")` and
/// `ZelSettings("").value("ui.FontSize")` are the same entry.
///
/// Several objects, threads and processes may use the store at once. Writes reach the file on
/// save(), when control returns to the event loop, and at the end of the process.
///
/// A file that can't be read as a store is named in a warning, copied aside, and the store starts
/// empty; a file that can't be written is named in a warning and the values live on in memory.
class ZELCORE_EXPORT ZelSettings
{
public:
    class Reference;

    /// An empty group is the unnamed group.
    explicit ZelSettings(QString group = QString());

    QString group() const;

    /// The stored value, or the default if there is none.
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    /// Stores a value. The comment, if there is one, is kept beside it for human readers; an empty
    /// one leaves the present comment. Other types are stored as the nearest of those above, by
    /// way of a text if need be; a type that has none is named in a warning and not stored.
    void setValue(const QString &key, const QVariant &value, const QString &comment = QString());
    bool hasKey(const QString &key) const;
    /// Removes the key and what lies below it (keys that continue it with a dot).
    void removeKey(const QString &key);
    /// The keys of this group, relative to it, sorted.
    QStringList keys() const;

    /// A proxy that reads as the value and stores what is assigned to it.
    Reference operator[](const QString &key);

    /// Writes what is pending to the file. False, with a warning, if that can't be done.
    static bool save();
    /// Chooses the file; call it before the first ZelSettings is used, or to change to another
    /// store (what was pending in the former one is saved first). An empty path goes back to the
    /// default: the environment variable ZEL_SETTINGS, else the user's configuration folder.
    static void setStorePath(const QString &path);
    static QString storePath();

private:
    QString physicalKey(const QString &key) const;

    QString group_;
};

/// What ZelSettings::operator[] gives; meant to be used at once, not kept.
class ZELCORE_EXPORT ZelSettings::Reference
{
public:
    operator QVariant() const;
    Reference &operator=(const QVariant &value);
    /// Stores the other one's value.
    Reference &operator=(const Reference &other);
    Reference(const Reference &) = default;

private:
    friend class ZelSettings;
    Reference(const ZelSettings &settings, const QString &key);

    QString group_;
    QString key_;
};
