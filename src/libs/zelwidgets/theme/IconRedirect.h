#pragma once

#include <QIcon>
#include <QString>

#include <optional>

/// The content of a .zelsvgr file: one picture of a family of .zelsvg files.
struct IconRedirect
{
    QString target;
    QIcon::Mode mode = QIcon::Normal;
    QIcon::State state = QIcon::Off;

    /// Nothing if the text has no line that isn't empty.
    static std::optional<IconRedirect> parse(const QString &text);
};
