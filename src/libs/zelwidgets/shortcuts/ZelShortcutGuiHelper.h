#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QMap>
#include <QStringList>

class QTreeWidget;
struct ShortcutEntry;

/// Fills a tree of shortcuts from the registry and writes it back.
class ZELWIDGETS_EXPORT ZelShortcutGuiHelper
{
public:
    ZelShortcutGuiHelper() = delete;

    /// Categories in their order, entries in the order of their ids. The tree needs four columns.
    static void buildTree(QTreeWidget *tree);
    /// The keys of the tree become those in force and are stored; ids that the registry doesn't
    /// know are entered. Without a tree the keys in force are only applied again.
    static void applyChanges(QTreeWidget *tree);

private:
    friend class ZelShortcutHandler;
    /// What applyChanges() makes of the entries.
    static void readTree(QTreeWidget *tree, QMap<QString, ShortcutEntry> &entries);
    /// These ids go when the tree is applied, unless it shows them.
    static void dropWhenApplied(QTreeWidget *tree, const QStringList &ids);
};
