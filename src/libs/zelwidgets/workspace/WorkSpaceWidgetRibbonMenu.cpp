#include "theme/ZelStyleSheets.h"
#include "workspace/WorkSpaceRibbonData.h"
#include "workspace/WorkSpaceRibbonLook.h"
#include "workspace/WorkSpaceWidgetRibbon.h"

#include <QAction>
#include <QMenu>

void WorkSpaceWidgetRibbon::createMenuButton()
{
    auto *menu = new QMenu(tr("Workspaces"), this);
    menu->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    menu->setAttribute(Qt::WA_TranslucentBackground);
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, &WorkSpaceWidgetRibbon::slotCreateMenu);
    connect(menu, &QMenu::triggered, this, &WorkSpaceWidgetRibbon::slotWorkSpaceMenuItemSelected);
    setMenu(menu);
}

void WorkSpaceWidgetRibbon::slotCreateMenu()
{
    updateChangeMark();
    QMenu *const menu = this->menu();
    menu->clear();
    const bool hasCurrent = data_->list.contains(data_->currentId);
    addWorkSpaceEntries();
    menu->addSeparator();
    menu->addAction(tr("Add..."), this, &WorkSpaceWidgetRibbon::slotAddWorkSpace)
        ->setToolTip(tr("Add the current workspace to the combo"));
    QAction *overwrite = menu->addAction(tr("Apply Changes..."), this,
                                         &WorkSpaceWidgetRibbon::slotOverwriteWorkSpace);
    overwrite->setToolTip(tr("Overwrite the selected workspace with the current workspace"));
    overwrite->setEnabled(hasCurrent);
    menu->addAction(tr("Manage..."), this, &WorkSpaceWidgetRibbon::slotRunMaintainDlg)
        ->setToolTip(tr("Reorder, rename and delete workspaces"));
    menu->addSeparator();
    addThemeEntries();
    menu->addSeparator();
    QAction *duplicate =
        menu->addAction(tr("Duplicate..."), this, &WorkSpaceWidgetRibbon::slotDuplicateWorkSpace);
    duplicate->setToolTip(tr("Copy the selected workspace as it is saved"));
    duplicate->setEnabled(hasCurrent);
    QAction *save =
        menu->addAction(tr("Export..."), this, &WorkSpaceWidgetRibbon::slotExportWorkSpace);
    save->setToolTip(tr("Write the selected workspace as it is saved to a file"));
    save->setEnabled(hasCurrent);
}

void WorkSpaceWidgetRibbon::addWorkSpaceEntries()
{
    for (const QString &id : data_->list.ids()) {
        QAction *entry = menu()->addAction(WorkSpaceRibbonLook::shownName(data_->list.nameOf(id)));
        entry->setData(id);
        if (id != data_->currentId)
            continue;
        entry->setText(entry->text() + QStringLiteral("..."));
        if (!isChanged_)
            continue;
        entry->setIcon(WorkSpaceRibbonLook::dotIcon(this));
        entry->setToolTip(tr("The interface differs from this workspace"));
    }
}

void WorkSpaceWidgetRibbon::addThemeEntries()
{
    data_->themeActions.clear();
    const QString current = ZelStyleSheets::colorThemeFromSettings();
    for (const auto &[label, key] : ZelStyleSheets::colorThemeList()) {
        QAction *entry = menu()->addAction(tr("%1 Theme").arg(label));
        entry->setData(key);
        entry->setCheckable(true);
        entry->setChecked(key == current);
        data_->themeActions.append(entry);
    }
}

void WorkSpaceWidgetRibbon::slotWorkSpaceMenuItemSelected(QAction *action)
{
    if (!action)
        return;
    const QString key = action->data().toString();
    if (data_->themeActions.contains(action))
        chooseTheme(key);
    else if (data_->list.contains(key))
        chooseWorkSpace(key);
}

void WorkSpaceWidgetRibbon::chooseTheme(const QString &key)
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const WorkSpaceRunningCall call(data_);
    ZelStyleSheets::updateColorThemeSettings(key);
    // Runs posted events.
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(key, QString(), false);
    if (self)
        Q_EMIT changedTheme(key);
}
