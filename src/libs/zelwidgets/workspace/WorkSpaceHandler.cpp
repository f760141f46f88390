#include "WorkSpaceHandler.h"

#include "ZelStoredValue.h"
#include "ZelWindowPlacement.h"
#include "docks/ZelDockPlaces.h"
#include "docks/ZelDocking.h"
#include "docks/ZelDocksOf.h"
#include "workspace/WorkSpaceDefaults.h"
#include "workspace/WorkSpaceGeometry.h"
#include "workspace/WorkSpaceInformation.h"
#include "workspace/WorkSpaceNames.h"
#include "workspace/WorkSpaceRibbonRules.h"

#include <QAction>
#include <QApplication>
#include <QDebug>
#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>
#include <QScreen>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr char areasProperty[] = "zelAllowedAreas";
bool isDevMode = false;

QString startupKey()
{
    return QStringLiteral("DoingStartupRestore");
}

void markStartupRestore(bool running)
{
    ZelSettings(QStringLiteral("ui")).setValue(startupKey(), running);
    ZelSettings::save();
}

QList<DefaultWorkSpaceInfo> readDefaultWorkSpaces()
{
    QList<DefaultWorkSpaceInfo> all = WorkSpaceDefaults().getCurrentDefaults().values();
    std::sort(all.begin(), all.end(),
              [](const DefaultWorkSpaceInfo &a, const DefaultWorkSpaceInfo &b) {
                  return WorkSpaceNames::isIdLess(a.id, b.id);
              });
    return all;
}

/// Docks may die when others change.
QList<QPointer<QDockWidget>> docksOf(const QMainWindow *window)
{
    const QList<QDockWidget *> docks = zelDocksOf<QDockWidget>(window);
    return {docks.begin(), docks.end()};
}

/// Lets the dock float where it stood, in sight.
void floatInPlace(const QMainWindow *window, QDockWidget *dock)
{
    const QRect place = ZelDockPlaces(window).of(dock);
    const QScreen *screen = widgetScreen(dock);
    const QPointer<QDockWidget> guard(dock);
    dock->setFloating(true);
    if (guard && screen)
        dock->setGeometry(
            WorkSpaceGeometry::placed(place.translated(window->mapToGlobal(QPoint())), QRect(),
                                      {screen->geometry(), screen->availableGeometry()}));
}

/// Panes and bars go and come, and the focus with them: whoever had it and is still there gets it
/// back, or the next key would press the first button of a title.
class FocusKeeper
{
public:
    FocusKeeper()
        : widget_(QApplication::focusWidget())
    {}
    ~FocusKeeper()
    {
        if (widget_ && widget_->isVisible() && QApplication::focusWidget() != widget_)
            widget_->setFocus(Qt::OtherFocusReason);
    }
    Q_DISABLE_COPY_MOVE(FocusKeeper)

private:
    QPointer<QWidget> widget_;
};

} // namespace

QByteArray WorkSpaceHandler::getWorkSpaceData(QWidget *libraryWindow, QWidget *projectWindow)
{
    WorkSpaceInformation information(libraryWindow, projectWindow);
    information.getDataFromCurrentState();
    return information.data();
}

bool WorkSpaceHandler::restoreWorkSpace(const QByteArray &data, QWidget *libraryWindow,
                                        QWidget *projectWindow, bool startup)
{
    if (isInWorkspaceRestore()) {
        qWarning() << "A workspace is being restored already";
        return false;
    }
    if (startup)
        markStartupRestore(true);
    bool restored = false;
    {
        const FocusKeeper focus;
        const ZelDocking::RestoreScope scope;
        restored = WorkSpaceInformation(libraryWindow, projectWindow).restoreState(data);
    }
    if (startup)
        markStartupRestore(false);
    return restored;
}

bool WorkSpaceHandler::isInWorkspaceRestore()
{
    return ZelDocking::isInRestore();
}

bool WorkSpaceHandler::mayHaveStartupRestoreIssue()
{
    return storedValue(ZelSettings(QStringLiteral("ui")), startupKey(), false);
}

void WorkSpaceHandler::clearStartupIssueFlag()
{
    ZelSettings(QStringLiteral("ui")).setValue(startupKey(), false);
}

QList<DefaultWorkSpaceInfo> WorkSpaceHandler::getDefaultWorkSpaces()
{
    static const QList<DefaultWorkSpaceInfo> workSpaces = readDefaultWorkSpaces();
    return workSpaces;
}

void WorkSpaceHandler::disableDockWidgets(QMainWindow *window)
{
    if (!window)
        return;
    const QPointer<QMainWindow> guard(window);
    for (const QPointer<QDockWidget> &dock : docksOf(window)) {
        if (!guard || !dock || dock->property(areasProperty).isValid())
            continue;
        dock->setProperty(areasProperty, dock->allowedAreas().toInt());
        dock->setAllowedAreas(Qt::NoDockWidgetArea);
        if (!dock->isFloating())
            floatInPlace(window, dock);
    }
}

void WorkSpaceHandler::enableDockWidgets(QMainWindow *window)
{
    if (!window)
        return;
    for (const QPointer<QDockWidget> &dock : docksOf(window)) {
        const QVariant areas = dock ? dock->property(areasProperty) : QVariant();
        if (!areas.isValid())
            continue;
        dock->setAllowedAreas(Qt::DockWidgetAreas::fromInt(areas.toInt()));
        dock->setProperty(areasProperty, QVariant());
    }
}

void WorkSpaceHandler::fixSeparators(QToolBar *bar)
{
    if (!bar)
        return;
    QList<QPointer<QAction>> actions;
    QList<WorkSpaceRibbonRules::BarItem> items;
    for (QAction *action : bar->actions()) {
        actions.append(action);
        items.append({action->isSeparator(), action->isVisible()});
    }
    const QList<bool> visible = WorkSpaceRibbonRules::visibleItems(items);
    for (int i = 0; i < int(actions.size()); ++i) {
        if (actions[i] && actions[i]->isSeparator())
            actions[i]->setVisible(visible[i]);
    }
}

void WorkSpaceHandler::setDevWorkSpaceMode(bool on)
{
    isDevMode = on;
}

bool WorkSpaceHandler::workSpaceDevMode()
{
    return isDevMode;
}

void WorkSpaceHandler::writeWorkSpaceData(const QByteArray &, const QString &) {}
