#include "WorkSpaceInformation.h"

#include "ZelMessageBox.h"
#include "ZelStoredValue.h"
#include "docks/ZelDockHold.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDocksOf.h"
#include "docks/ZelTabOrder.h"
#include "docks/ZelTextIconTabWidget.h"
#include "workspace/WorkSpaceAnimationBlock.h"
#include "workspace/WorkSpaceDockPlacer.h"
#include "workspace/WorkSpaceHandler.h"
#include "workspace/WorkSpaceNames.h"
#include "workspace/WorkSpaceTabOrder.h"
#include "workspace/WorkSpaceUpdateBlock.h"

#include <QDebug>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

namespace {

void reportError(const QString &text)
{
    ZelMessageBox::critical(nullptr, WorkSpaceInformation::tr("Error"), text);
}

/// Input of the user waits until the interface is whole again.
void processEvents()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QList<WorkSpaceGeometry::Screen> presentScreens()
{
    QList<WorkSpaceGeometry::Screen> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append({screen->geometry(), screen->availableGeometry()});
    return screens;
}

QStringList filtered(const QStringList &names)
{
    QStringList result;
    for (const QString &name : names)
        result.append(WorkSpaceNames::filtered(name));
    return result;
}

int indexOfText(const QTabWidget *tabs, const QString &text)
{
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->tabText(i) == text)
            return i;
    }
    return tabs->currentIndex();
}

} // namespace

bool WorkSpaceInformation::restoreState(const QByteArray &data)
{
    if (!hasWindows()) {
        reportError(tr("Internal error in Zelmora (Workspace restore)"));
        return false;
    }
    hideHelpers();
    ZelTabOrder::markOriginal(library_);
    ZelTabOrder::markOriginal(project_);
    if (!read(data)) {
        reportError(tr("Could not set/restore desktop state"));
        return false;
    }
    const WorkSpaceUpdateBlock block(window_);
    putPagesBack();
    restoreTabs();
    const bool restored = restoreLayout();
    showLooseDocks();
    applyTargets();
    restoreRibbon();
    restoreNestedTabs();
    restoreToolBar();
    refreshRibbon();
    settle();
    restoreDocking();
    if (window_)
        checkStudio("at restore 3", "WorkSpaceInformation::restoreState", __LINE__);
    return restored;
}

void WorkSpaceInformation::hideHelpers()
{
    for (const QString &name :
         {QStringLiteral("ZelCloudWidget"), QStringLiteral("ZelLightManager")}) {
        if (auto *helper = window_->findChild<QWidget *>(name))
            helper->hide();
    }
}

/// False if the bytes hold nothing that could be restored, or lists that don't fit each other.
bool WorkSpaceInformation::read(const QByteArray &data)
{
    record_ = WorkSpaceRecord::read(data);
    targets_ = WorkSpaceGeometry::targetsOf(record_, int(QGuiApplication::screens().size()));
    const bool isEmpty = !record_.isValid && record_.mainWindowState.isEmpty();
    return !isEmpty && record_.hasMatchingTabs();
}

void WorkSpaceInformation::putPagesBack()
{
    // Docks that are still held from a change just before would keep their sizes, and the end of
    // it would let go of those that are placed.
    ZelDockHold::end(window_);
    ZelDockHold::release(window_);
    QList<QPointer<ZelDockWidgetFromTab>> docks;
    for (ZelDockWidgetFromTab *dock : zelDocksOf<ZelDockWidgetFromTab>(window_))
        docks.append(dock);
    for (const QPointer<ZelDockWidgetFromTab> &dock : docks) {
        if (dock)
            dock->forceRestoreInView();
    }
}

void WorkSpaceInformation::restoreTabs()
{
    if (library_)
        orderTabs(library_, record_.libraryTabOrder);
    if (project_ && project_ != library_)
        orderTabs(project_, record_.projectTabOrder);
    if (library_)
        library_->setCurrentIndex(record_.libraryTabIndex);
    if (project_)
        project_->setCurrentIndex(record_.projectTabIndex);
}

void WorkSpaceInformation::orderTabs(ZelTextIconTabWidget *tabs, const QStringList &order)
{
    const Tabs guard(tabs);
    QStringList pages;
    for (int i = 0; i < tabs->count(); ++i) {
        pages.append(WorkSpaceNames::filtered(tabs->widget(i)->objectName()));
        tabs->widget(i)->setObjectName(pages.last());
    }
    const QList<int> ranks = WorkSpaceTabOrder::ranks(pages, filtered(order));
    for (int i = 0; i < tabs->count(); ++i)
        ZelTabOrder::storePosition(tabs, tabs->widget(i), ranks[i]);
    ZelTabOrder::apply(tabs);
    if (guard)
        tearOutPages(tabs);
}

void WorkSpaceInformation::tearOutPages(ZelTextIconTabWidget *tabs)
{
    const Tabs guard(tabs);
    const QStringList names = filtered(record_.tornOutNames);
    for (int i = 0; i < int(names.size()); ++i) {
        for (int tab = 0; guard && tab < tabs->count(); ++tab) {
            if (tabs->widget(tab)->objectName() != names[i])
                continue;
            if (ZelDockWidgetFromTab *dock = tabs->changeTab2Window(tab))
                place(dock, i);
            break;
        }
    }
}

void WorkSpaceInformation::place(ZelDockWidgetFromTab *dock, int tornOut)
{
    const QList<WorkSpaceGeometry::Screen> screens = presentScreens();
    const bool hasTarget = record_.hasMatchingTabScreens();
    const WorkSpaceGeometry::Target target =
        hasTarget ? targets_[tornOut]
                  : WorkSpaceGeometry::Target{{}, record_.tornOutRects[tornOut], {}, 0, true};
    if (record_.tornOutRects[tornOut] == WorkSpaceRecord::hiddenRect()) {
        // It comes up on its screen when it is shown.
        if (target.screen < screens.size())
            dock->move(screens[target.screen].available.topLeft());
        dock->setAllowHide(true);
        dock->setVisible(false);
        dock->setAllowHide(false);
        return;
    }
    const QRect rect = WorkSpaceGeometry::placed(target, screens);
    if (!rect.isEmpty())
        dock->setGeometry(rect);
    shown_.append(dock);
}

bool WorkSpaceInformation::restoreLayout()
{
    if (!window_)
        return false;
    const WorkSpaceAnimationBlock block(window_);
    processEvents();
    const bool restored = window_ && window_->restoreState(record_.mainWindowState, 0);
    return restored;
}

/// Docks that never stood in the layout aren't in the state of the main window.
void WorkSpaceInformation::showLooseDocks()
{
    for (const QPointer<ZelDockWidgetFromTab> &dock : std::as_const(shown_)) {
        if (dock && dock->isHidden())
            dock->show();
    }
    for (const WorkSpaceGeometry::Target &target : std::as_const(targets_)) {
        QDockWidget *dock = window_ && !target.isTornOut ? dockOf(target) : nullptr;
        if (dock && dock->isHidden() && window_->dockWidgetArea(dock) == Qt::NoDockWidgetArea)
            dock->show();
    }
    processEvents();
}

QDockWidget *WorkSpaceInformation::dockOf(const WorkSpaceGeometry::Target &target) const
{
    if (!target.isTornOut) {
        for (ZelDockWidget *dock : zelDocksOf<ZelDockWidget>(window_)) {
            if (!target.dock.isEmpty() && dock->objectName() == target.dock)
                return dock;
        }
        return nullptr;
    }
    const QString name = WorkSpaceNames::filtered(target.dock);
    for (ZelDockWidgetFromTab *dock : zelDocksOf<ZelDockWidgetFromTab>(window_)) {
        if (dock->page() && dock->page()->objectName() == name && dock->contentsWidget())
            return dock;
    }
    return nullptr;
}

void WorkSpaceInformation::applyTargets()
{
    if (!window_)
        return;
    WorkSpaceDockPlacer placer(window_);
    const QList<WorkSpaceGeometry::Screen> screens = presentScreens();
    for (const WorkSpaceGeometry::Target &target : std::as_const(targets_)) {
        QDockWidget *dock = dockOf(target);
        if (dock && target.oldRect != WorkSpaceRecord::hiddenRect())
            placer.add(dock, WorkSpaceGeometry::placed(target, screens));
    }
    if (placer.hold())
        processEvents();
    placer.release();
    targets_.clear();
}

void WorkSpaceInformation::restoreNestedTabs()
{
    if (!hasWindows() || !record_.hasMatchingTabWidgets())
        return;
    const QList<QTabWidget *> nested = nestedTabWidgets();
    QList<QPointer<QTabWidget>> present(nested.begin(), nested.end());
    for (int i = 0; i < int(record_.tabWidgetNames.size()); ++i) {
        const QString &name = record_.tabWidgetNames[i];
        const auto found =
            std::find_if(present.begin(), present.end(), [&](const QTabWidget *tabs) {
                return tabs && tabs->objectName() == name;
            });
        if (found == present.end())
            continue;
        // Of several that share a name each has its turn.
        QTabWidget *tabs = *found;
        present.erase(found);
        const int index = name == QLatin1String("ScenePageSubTab")
                              ? indexOfText(tabs, record_.sceneSubTabText)
                              : record_.tabWidgetIndices[i];
        tabs->setCurrentIndex(index);
    }
}

void WorkSpaceInformation::restoreDocking()
{
    const QString key = QStringLiteral("EnableDocking");
    ZelSettings settings(QStringLiteral("ui"));
    if (settings.value(key) != QVariant(record_.enableDocking))
        settings.setValue(key, record_.enableDocking);
    if (window_ && record_.enableDocking)
        WorkSpaceHandler::enableDockWidgets(window_);
}
