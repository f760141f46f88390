#pragma once

#include <QIcon>
#include <QString>

/// One colour of a theme, for one icon mode and state.
struct ColorEntry
{
    int mode = QIcon::Normal;
    int state = QIcon::Off;
    QString color;

    /// Takes mode and state from the suffixes of the key.
    static ColorEntry fromKey(const QString &key, const QString &color);
};

/// A colour key as a marker names it, with what the lookup needs of it.
struct ColorKey
{
    explicit ColorKey(const QString &key);

    /// The key in lower case without any mode or state suffix.
    static QString baseName(const QString &key);

    QString key;
    QString base;
    bool suffixed;
};
