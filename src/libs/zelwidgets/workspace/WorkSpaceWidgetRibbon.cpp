#include "workspace/WorkSpaceWidgetRibbon.h"

#include "ZelDialogTextCopier.h"
#include "ZelMessageBox.h"
#include "workspace/WorkSpaceComparison.h"
#include "workspace/WorkSpaceFiles.h"
#include "workspace/WorkSpaceHandler.h"
#include "workspace/WorkSpaceMaintainDialog.h"
#include "workspace/WorkSpaceNames.h"
#include "workspace/WorkSpaceRibbonData.h"
#include "workspace/WorkSpaceRibbonLook.h"
#include "workspace/WorkSpaceTextDialog.h"

#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleOptionButton>

WorkSpaceWidgetRibbon::WorkSpaceWidgetRibbon(QWidget *parent)
    : ZelMenuButton(parent)
    , data_(std::make_shared<WorkSpaceRibbonData>())
{
    setObjectName(QStringLiteral("Ribbon"));
    setStyleSheet(styleSheet() + QStringLiteral("text-align: left;"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setText(QString());
    setAccessibleName(tr("Workspaces"));
    createMenuButton();

    data_->button = this;
    data_->factory = WorkSpaceHandler::getDefaultWorkSpaces();
    data_->list.addNewFactoryWorkSpaces(data_->factory);
    slotSetInitialWorkSpaces();
    const QString startId = data_->list.startId(data_->factory);
    if (!startId.isEmpty())
        data_->currentId = startId;
    showCurrentName();
}

WorkSpaceWidgetRibbon::~WorkSpaceWidgetRibbon()
{
    // The menu comes back to its own code when the call of its entry is over.
    QMenu *const menu = this->menu();
    if (menu && data_->runningCalls > 0) {
        menu->hide();
        menu->setParent(nullptr);
        menu->deleteLater();
    }
}

QMenu *WorkSpaceWidgetRibbon::menu() const
{
    return ZelMenuButton::menu();
}

QString WorkSpaceWidgetRibbon::currentWorkSpace() const
{
    return data_->currentId;
}

bool WorkSpaceWidgetRibbon::isWorkSpaceChanged() const
{
    return isChanged_;
}

void WorkSpaceWidgetRibbon::setLibraryWindow(QWidget *window)
{
    data_->libraryWindow = window;
}

void WorkSpaceWidgetRibbon::setProjectWindow(QWidget *window)
{
    data_->projectWindow = window;
}

void WorkSpaceWidgetRibbon::slotSetInitialWorkSpaces()
{
    const QString id = data_->list.setUpOnce(data_->factory);
    if (!data_->list.contains(id))
        return;
    data_->currentId = id;
    showCurrentName();
}

void WorkSpaceWidgetRibbon::chooseWorkSpace(const QString &id)
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const WorkSpaceRunningCall call(data_);
    if (id == data_->currentId && !ZelMessageBox::noGui() && !confirmRevert(data_->list.nameOf(id)))
        return;
    if (!self)
        return;
    makeCurrent(id);
    // Both the windows and the button may be gone when events have run.
    const std::shared_ptr<WorkSpaceRibbonData> data = data_;
    WorkSpaceHandler::restoreWorkSpace(data->list.data(id), data->libraryWindow,
                                       data->projectWindow, false);
    if (self && self->data_->currentId == id)
        settle(capture());
}

bool WorkSpaceWidgetRibbon::confirmRevert(const QString &name)
{
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, tr("Revert Workspace Changes"),
                        tr("Do you want to revert to the saved Workspace '%1'?").arg(name),
                        QMessageBox::Yes | QMessageBox::No, window());
    box->button(QMessageBox::Yes)->setText(tr("Revert"));
    new ZelDialogTextCopier(box);
    const int answer = box->exec();
    delete box.data();
    return answer == QMessageBox::Yes;
}

void WorkSpaceWidgetRibbon::slotOverwriteWorkSpace()
{
    const QString id = data_->currentId;
    if (!data_->list.contains(id))
        return;
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const WorkSpaceRunningCall call(data_);
    const auto answer =
        ZelMessageBox::question(window(), tr("Apply Workspace Changes"),
                                tr("Do you want to update '%1' to use the current interface "
                                   "configuration?")
                                    .arg(data_->list.nameOf(id)));
    if (!self || answer != QMessageBox::Yes)
        return;
    const QByteArray data = capture();
    data_->list.setData(id, data);
    settle(data);
}

void WorkSpaceWidgetRibbon::slotAddWorkSpace()
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const WorkSpaceRunningCall call(data_);
    const QString name =
        askForName(tr("Add Workspace"), WorkSpaceNames::proposedName(data_->list.names()));
    if (!self || name.isNull())
        return;
    const QString id = WorkSpaceNames::freeId(data_->list.ids());
    const QByteArray data = capture();
    data_->list.add({id, name, data});
    makeCurrent(id);
    settle(data);
}

void WorkSpaceWidgetRibbon::slotDuplicateWorkSpace()
{
    const QString original = data_->currentId;
    if (!data_->list.contains(original))
        return;
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const WorkSpaceRunningCall call(data_);
    const QString proposal =
        WorkSpaceNames::importedName(data_->list.nameOf(original), data_->list.names());
    const QString name = askForName(tr("Duplicate Workspace"), proposal);
    if (!self || name.isNull())
        return;
    const QString id = WorkSpaceNames::freeId(data_->list.ids());
    data_->list.add({id, name, data_->list.data(original)});
    // What the interface was like when the original came into force holds for its copy as well.
    makeCurrent(id);
}

QString WorkSpaceWidgetRibbon::askForName(const QString &title, const QString &proposal)
{
    const QPointer<WorkSpaceTextDialog> dialog =
        new WorkSpaceTextDialog(title, tr("Workspace Name:"), proposal, this);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    const QString name = isAccepted ? dialog->text().trimmed() : QString();
    delete dialog.data();
    return name;
}

void WorkSpaceWidgetRibbon::slotExportWorkSpace()
{
    const QString id = data_->currentId;
    const WorkSpaceRunningCall call(data_);
    if (data_->list.contains(id))
        WorkSpaceFiles::exportWorkSpaces(window(),
                                         {{id, data_->list.nameOf(id), data_->list.data(id)}});
}

void WorkSpaceWidgetRibbon::slotRunMaintainDlg()
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const WorkSpaceRunningCall call(data_);
    const QByteArray before = data_->list.data(data_->currentId);
    const QPointer<WorkSpaceMaintainDialog> dialog = new WorkSpaceMaintainDialog(data_, window());
    dialog->exec();
    delete dialog.data();
    if (!self)
        return;
    if (data_->list.data(data_->currentId) != before)
        settle(QByteArray());
    if (data_->currentId.isEmpty())
        makeCurrent(QString());
    showCurrentName();
}

void WorkSpaceWidgetRibbon::makeCurrent(const QString &id)
{
    data_->currentId = id;
    data_->list.setLastUsed(id);
    showCurrentName();
}

void WorkSpaceWidgetRibbon::showCurrentName()
{
    const QString name = data_->list.nameOf(data_->currentId);
    setText(WorkSpaceRibbonLook::shownName(name));
    setAccessibleDescription(
        isChanged_ ? tr("%1, the interface differs from this workspace").arg(name) : name);
}

QByteArray WorkSpaceWidgetRibbon::capture() const
{
    return WorkSpaceHandler::getWorkSpaceData(data_->libraryWindow, data_->projectWindow);
}

void WorkSpaceWidgetRibbon::settle(const QByteArray &data)
{
    settled_ = data;
    setChanged(false);
}

void WorkSpaceWidgetRibbon::updateChangeMark()
{
    if (WorkSpaceHandler::isInWorkspaceRestore())
        return;
    const QByteArray stored = data_->list.data(data_->currentId);
    if (stored.isEmpty() || !data_->libraryWindow || !data_->projectWindow) {
        setChanged(false);
        return;
    }
    const QByteArray present = capture();
    const bool isSame =
        WorkSpaceComparison::isSameArrangement(stored, present) ||
        (!settled_.isEmpty() && WorkSpaceComparison::isSameArrangement(settled_, present));
    setChanged(!isSame);
}

void WorkSpaceWidgetRibbon::setChanged(bool changed)
{
    if (changed == isChanged_)
        return;
    isChanged_ = changed;
    showCurrentName();
    update();
}

void WorkSpaceWidgetRibbon::paintEvent(QPaintEvent *event)
{
    ZelMenuButton::paintEvent(event);
    if (!isChanged_)
        return;
    QStyleOptionButton option;
    initStyleOption(&option);
    WorkSpaceRibbonLook::paintDot(this, option);
}
