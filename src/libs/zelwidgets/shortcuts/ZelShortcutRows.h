#pragma once

#include "ZelShortcutFilter.h"
#include "ZelShortcutScopes.h"
#include "ZelShortcutVerdict.h"

#include <QHash>
#include <QList>

class QTreeWidget;
class QTreeWidgetItem;
class ZelShortcutTreeItem;

/// The shortcuts of an editor's tree: what they were when they were last applied, which of them
/// are in conflict, which are shown. Columns are those of ZelShortcutTreeItem, and the state.
class ZelShortcutRows
{
public:
    static constexpr int stateColumn = 4;

    /// Reads the tree anew; what it shows counts as applied, if told so.
    void read(QTreeWidget *tree, bool isApplied);
    void clear();
    /// Where shortcuts work may have changed.
    void updateScopes();

    int count() const { return static_cast<int>(rows_.size()); }
    /// -1 for an item that is no shortcut.
    int indexOf(const QTreeWidgetItem *item) const;
    int indexOfId(const QString &id) const;
    ZelShortcutTreeItem *item(int row) const { return rows_[row].item; }
    bool hasUnapplied() const;

    /// Sets a shortcut, and marks those that come into conflict or out of it.
    void setShortcut(int row, const QString &internalText);
    /// Who else has the binding.
    ZelShortcutVerdict verdict(int row, const ZelShortcutBinding &binding) const;
    /// Hides what doesn't fit; the number of rows that do.
    int applyFilter(const ZelShortcutFilter &filter) const;
    bool fits(const ZelShortcutFilter &filter, int row) const;

private:
    struct Row
    {
        ZelShortcutTreeItem *item;
        QString id;
        QString category;
        ZelShortcutBinding binding;
        ZelShortcutFilter::Row shown;
        bool isApplied = true;
        bool isOfPreset = false;
    };

    static ZelShortcutBinding bindingOf(const Row &row);
    void refresh(int row);
    void refreshConflict(int row);
    void showState(const Row &row) const;
    QList<int> clashing(int row, const ZelShortcutBinding &binding) const;
    bool shareScope(const Row &a, const Row &b) const;

    QList<Row> rows_;
    QHash<const QTreeWidgetItem *, int> byItem_;
    QHash<QString, int> byId_;
    QMultiHash<quint64, int> byBucket_;
    QHash<QString, QString> applied_;
    ZelShortcutScopes scopes_;
};
