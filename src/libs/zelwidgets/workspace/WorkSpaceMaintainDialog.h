#pragma once

#include "workspace/DefaultWorkSpaceInfo.h"

#include <QDialog>
#include <QHash>
#include <QStringList>

#include <memory>

struct WorkSpaceRibbonData;
class QAction;
class QItemSelectionModel;
class QStandardItem;
class QStandardItemModel;
class QTableView;
class ZelToolButton;

/// Puts the workspaces into another order, renames, deletes, imports and exports them. The store
/// changes when the dialog is accepted, and not before.
class WorkSpaceMaintainDialog : public QDialog
{
    Q_OBJECT

public:
    WorkSpaceMaintainDialog(std::shared_ptr<WorkSpaceRibbonData> data, QWidget *parent = nullptr);
    ~WorkSpaceMaintainDialog() override;

    void accept() override;

private:
    void createTable();
    void createLayout();
    QWidget *createSideBar();
    ZelToolButton *createButton(const QString &icon, const QString &toolTip);
    void moveCurrentRow(int step);
    void renameCurrentRow();
    void deleteSelectedRows();
    void importFromFiles();
    void exportToFile();
    void restoreDefaults();
    void updateButtons();

    void appendRow(const QString &id, const QString &name);
    /// The rows from top to bottom as the user sees them.
    QList<int> visibleOrder() const;
    /// With the data that the store doesn't have yet; the others have none.
    DefaultWorkSpaceInfo workSpaceAt(int row) const;
    QStringList listedIds() const;
    QStringList listedNames() const;

    std::shared_ptr<WorkSpaceRibbonData> data_;
    /// Data of imported and restored workspaces by their ids.
    QHash<QString, QByteArray> pending_;
    QStandardItemModel *model_;
    QTableView *table_;
    ZelToolButton *up_ = nullptr;
    ZelToolButton *down_ = nullptr;
    ZelToolButton *import_ = nullptr;
    ZelToolButton *export_ = nullptr;
    ZelToolButton *delete_ = nullptr;
    QAction *renameAction_ = nullptr;
    QAction *deleteAction_ = nullptr;
};
