#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>

#include <optional>

/// A palette file (.gpl): a title and named colours of 8 bits a channel.
struct ZelGplPalette
{
    struct Entry
    {
        QColor color;
        QString name;
        bool operator==(const Entry &other) const = default;
    };

    /// Nothing if the text isn't such a palette. Lines that aren't colours are skipped, numbers are
    /// clamped to 0 to 255, bytes that aren't UTF-8 are replaced.
    static std::optional<ZelGplPalette> read(const QByteArray &text);
    /// Line breaks in names become blanks.
    QByteArray write() const;

    QString title;
    QList<Entry> entries;
};
