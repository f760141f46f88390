#pragma once

#include "ZelShortcutRows.h"

#include <QObject>

#include <functional>

class QPushButton;
class QTreeWidget;
class QVBoxLayout;
class ZelShortcutEditorWidget;
class ZelShortcutFilterBar;
class ZelShortcutRecordPanel;
class ZelShortcutTreeItem;
class ZelViewModeChoice;

/// The parts of an editor of shortcuts, and how they act on one another.
class ZelShortcutEditorWidgetPrivate : public QObject
{
public:
    explicit ZelShortcutEditorWidgetPrivate(ZelShortcutEditorWidget *editor);
    ~ZelShortcutEditorWidgetPrivate() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

    QTreeWidget *createTree();
    void fitColumns();
    void createButtons(QVBoxLayout *layout);
    void connectParts();

    int currentRow() const { return rows.indexOf(tree->currentItem()); }
    /// After the rows were made anew.
    void readTree(bool isApplied);
    void rebuild(const QString &currentId);
    void setShortcut(int row, const QString &text);
    void setAll(const std::function<QString(const ZelShortcutTreeItem &)> &text);
    void accept(bool takesAway);
    void judge();
    void filterRows();
    void goToFirstRow();
    void updatePanel();
    void updateButtons();
    void endRecording();
    void importByUser();
    void exportByUser();

    ZelShortcutEditorWidget *q;
    ZelShortcutFilterBar *filter;
    QTreeWidget *tree;
    ZelShortcutRecordPanel *panel;
    ZelViewModeChoice *modes;
    QPushButton *applyButton = nullptr;
    ZelShortcutRows rows;
    bool wasHidden = false;
};
