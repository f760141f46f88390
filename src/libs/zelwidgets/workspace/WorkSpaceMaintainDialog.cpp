#include "workspace/WorkSpaceMaintainDialog.h"

#include "ZelToolButton.h"
#include "theme/ZelPushButton.h"
#include "theme/ZelStyleIcon.h"
#include "workspace/MaxLengthItemDelete.h"
#include "workspace/WorkSpaceFiles.h"
#include "workspace/WorkSpaceNameChooser.h"
#include "workspace/WorkSpaceNames.h"
#include "workspace/WorkSpaceRibbonData.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QItemSelection>
#include <QPointer>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace {

constexpr int spaceAboveButtons = 5;

} // namespace

WorkSpaceMaintainDialog::WorkSpaceMaintainDialog(std::shared_ptr<WorkSpaceRibbonData> data,
                                                 QWidget *parent)
    : QDialog(parent)
    , data_(std::move(data))
    , model_(new QStandardItemModel(0, 1, this))
    , table_(new QTableView(this))
{
    setWindowTitle(tr("Manage Workspaces"));
    for (const QString &id : data_->list.ids())
        appendRow(id, data_->list.nameOf(id));
    createTable();
    createLayout();
    if (model_->rowCount() > 0)
        table_->selectRow(std::max(int(data_->list.ids().indexOf(data_->currentId)), 0));
    updateButtons();
}

WorkSpaceMaintainDialog::~WorkSpaceMaintainDialog() = default;

void WorkSpaceMaintainDialog::createTable()
{
    table_->setModel(model_);
    table_->setItemDelegate(new MaxLengthItemDelete(table_));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    table_->setTabKeyNavigation(false);
    table_->setShowGrid(false);
    table_->setAccessibleName(tr("Workspaces"));
    table_->setMinimumWidth(table_->fontMetrics().horizontalAdvance(QStringLiteral("XX")) *
                            WorkSpaceNames::maximumLength);
    table_->horizontalHeader()->hide();
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->hide();

    renameAction_ = new QAction(tr("Rename"), table_);
    renameAction_->setShortcut(Qt::Key_F2);
    connect(renameAction_, &QAction::triggered, this, &WorkSpaceMaintainDialog::renameCurrentRow);
    deleteAction_ = new QAction(tr("Delete"), table_);
    deleteAction_->setShortcut(QKeySequence::Delete);
    connect(deleteAction_, &QAction::triggered, this, &WorkSpaceMaintainDialog::deleteSelectedRows);
    for (QAction *action : {renameAction_, deleteAction_}) {
        // An open editor keeps its keys.
        action->setShortcutContext(Qt::WidgetShortcut);
        table_->addAction(action);
    }
    table_->setContextMenuPolicy(Qt::ActionsContextMenu);

    const auto update = [this] {
        updateButtons();
    };
    const QItemSelectionModel *selection = table_->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, update);
    connect(selection, &QItemSelectionModel::currentChanged, this, update);
    connect(table_->verticalHeader(), &QHeaderView::sectionMoved, this, update);
}

void WorkSpaceMaintainDialog::createLayout()
{
    auto *restore = new ZelPushButton(tr("Restore Default Workspaces"), this);
    restore->setAutoDefault(false);
    connect(restore, &QPushButton::clicked, this, &WorkSpaceMaintainDialog::restoreDefaults);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &WorkSpaceMaintainDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *row = new QHBoxLayout;
    row->addWidget(table_, 1);
    row->addWidget(createSideBar());
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row, 1);
    layout->addWidget(restore, 0, Qt::AlignLeft);
    layout->addSpacing(spaceAboveButtons);
    layout->addWidget(buttons);
}

QWidget *WorkSpaceMaintainDialog::createSideBar()
{
    auto *bar = new QWidget(this);
    auto *layout = new QVBoxLayout(bar);
    layout->setContentsMargins({});
    up_ = createButton(QStringLiteral(":ui/icons/move_up"), tr("Move up item"));
    down_ = createButton(QStringLiteral(":ui/icons/move_down"), tr("Move down item"));
    import_ = createButton(QStringLiteral(":ui/icons/folder_import"), tr("Import Workspaces"));
    export_ = createButton(QStringLiteral(":ui/icons/folder_export"), tr("Export Workspaces"));
    delete_ = createButton(QStringLiteral(":ui/icons/delete"), tr("Delete Workspaces"));
    for (ZelToolButton *button : {up_, down_, import_, export_, delete_})
        layout->addWidget(button);
    layout->addStretch();

    // A button's own shortcut plays a press, and drops keys that come faster.
    const auto *upKey = new QShortcut(Qt::ALT | Qt::Key_Up, this);
    const auto *downKey = new QShortcut(Qt::ALT | Qt::Key_Down, this);
    connect(upKey, &QShortcut::activated, up_, &QToolButton::click);
    connect(downKey, &QShortcut::activated, down_, &QToolButton::click);
    connect(up_, &QToolButton::clicked, this, [this] { moveCurrentRow(-1); });
    connect(down_, &QToolButton::clicked, this, [this] { moveCurrentRow(1); });
    connect(import_, &QToolButton::clicked, this, &WorkSpaceMaintainDialog::importFromFiles);
    connect(export_, &QToolButton::clicked, this, &WorkSpaceMaintainDialog::exportToFile);
    connect(delete_, &QToolButton::clicked, this, &WorkSpaceMaintainDialog::deleteSelectedRows);
    return bar;
}

ZelToolButton *WorkSpaceMaintainDialog::createButton(const QString &icon, const QString &toolTip)
{
    auto *button = new ZelToolButton(ZelToolButton::Border, this);
    button->setIcon(ZelStyleIcon(icon));
    button->setToolTip(toolTip);
    return button;
}

void WorkSpaceMaintainDialog::accept()
{
    // An open editor ends with the focus.
    table_->setFocus();
    QList<DefaultWorkSpaceInfo> workSpaces;
    for (int row : visibleOrder())
        workSpaces.append(workSpaceAt(row));
    data_->list.replace(workSpaces);
    if (!data_->list.contains(data_->currentId))
        data_->currentId.clear();
    QDialog::accept();
}

void WorkSpaceMaintainDialog::moveCurrentRow(int step)
{
    QHeaderView *header = table_->verticalHeader();
    const int place = header->visualIndex(table_->currentIndex().row());
    const int target = place + step;
    if (place < 0 || target < 0 || target >= header->count())
        return;
    header->swapSections(place, target);
    table_->scrollTo(table_->currentIndex());
}

void WorkSpaceMaintainDialog::renameCurrentRow()
{
    if (table_->currentIndex().isValid())
        table_->edit(table_->currentIndex());
}

void WorkSpaceMaintainDialog::deleteSelectedRows()
{
    QList<int> rows;
    for (const QModelIndex &index : table_->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end(), std::greater<>());
    for (int row : rows)
        model_->removeRow(row);
    updateButtons();
}

void WorkSpaceMaintainDialog::importFromFiles()
{
    const QPointer<WorkSpaceMaintainDialog> self(this);
    const QList<DefaultWorkSpaceInfo> workSpaces = WorkSpaceFiles::importWorkSpaces(this);
    if (!self || workSpaces.isEmpty())
        return;
    const int firstRow = model_->rowCount();
    // Ids of deleted workspaces are still in use until the dialog is accepted.
    WorkSpaceNameChooser chooser(listedIds() + data_->list.ids(), listedNames());
    for (const DefaultWorkSpaceInfo &workSpace : workSpaces) {
        const QString id = chooser.takeId();
        pending_.insert(id, workSpace.data);
        appendRow(id, chooser.takeName(workSpace.name));
    }
    const QItemSelection imported(model_->index(firstRow, 0),
                                  model_->index(model_->rowCount() - 1, 0));
    table_->setCurrentIndex(model_->index(firstRow, 0));
    table_->selectionModel()->select(imported, QItemSelectionModel::ClearAndSelect);
    table_->scrollToBottom();
}

void WorkSpaceMaintainDialog::exportToFile()
{
    QList<DefaultWorkSpaceInfo> workSpaces;
    const QItemSelectionModel *selection = table_->selectionModel();
    for (int row : visibleOrder()) {
        if (selection->hasSelection() && !selection->isRowSelected(row))
            continue;
        DefaultWorkSpaceInfo workSpace = workSpaceAt(row);
        if (!pending_.contains(workSpace.id))
            workSpace.data = data_->list.data(workSpace.id);
        workSpaces.append(workSpace);
    }
    WorkSpaceFiles::exportWorkSpaces(this, workSpaces);
}

void WorkSpaceMaintainDialog::restoreDefaults()
{
    const QStringList listed = listedIds();
    for (const DefaultWorkSpaceInfo &workSpace : std::as_const(data_->factory)) {
        if (listed.contains(workSpace.id))
            continue;
        pending_.insert(workSpace.id, workSpace.data);
        appendRow(workSpace.id, workSpace.name);
    }
    updateButtons();
}

void WorkSpaceMaintainDialog::updateButtons()
{
    if (!delete_)
        return;
    const QModelIndexList selected = table_->selectionModel()->selectedRows();
    const bool isOne = selected.size() == 1 && selected.first() == table_->currentIndex();
    const QHeaderView *header = table_->verticalHeader();
    const int place = isOne ? header->visualIndex(selected.first().row()) : -1;
    up_->setEnabled(place > 0);
    down_->setEnabled(isOne && place < header->count() - 1);
    export_->setEnabled(!selected.isEmpty());
    delete_->setEnabled(!selected.isEmpty());
    renameAction_->setEnabled(isOne);
    deleteAction_->setEnabled(!selected.isEmpty());
}

void WorkSpaceMaintainDialog::appendRow(const QString &id, const QString &name)
{
    auto *item = new QStandardItem(name);
    item->setData(id, Qt::UserRole);
    model_->appendRow(item);
}

QList<int> WorkSpaceMaintainDialog::visibleOrder() const
{
    QList<int> rows;
    const QHeaderView *header = table_->verticalHeader();
    for (int place = 0; place < header->count(); ++place)
        rows.append(header->logicalIndex(place));
    return rows;
}

DefaultWorkSpaceInfo WorkSpaceMaintainDialog::workSpaceAt(int row) const
{
    const QStandardItem *item = model_->item(row);
    const QString id = item->data(Qt::UserRole).toString();
    return {id, item->text(), pending_.value(id)};
}

QStringList WorkSpaceMaintainDialog::listedIds() const
{
    QStringList ids;
    for (int row = 0; row < model_->rowCount(); ++row)
        ids.append(model_->item(row)->data(Qt::UserRole).toString());
    return ids;
}

QStringList WorkSpaceMaintainDialog::listedNames() const
{
    QStringList names;
    for (int row = 0; row < model_->rowCount(); ++row)
        names.append(model_->item(row)->text());
    return names;
}
