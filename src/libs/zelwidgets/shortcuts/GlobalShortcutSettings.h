#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

/// The categories of shortcuts and the names that are fixed for some ids.
struct GlobalShortcutSettings
{
    /// Prefix of the ids and text, in the order of the editor.
    QList<QPair<QString, QString>> categories;
    /// Prefix to text.
    QHash<QString, QString> categoryIndex;
    /// Id to the text that comes before the one that code announces.
    QMap<QString, QString> nameOverrides;
};
