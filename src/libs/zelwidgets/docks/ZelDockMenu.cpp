#include "ZelDockMenu.h"

#include "ZelMenu.h"
#include "ZelWindowPlacement.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDockWidgetTitle.h"
#include "docks/ZelDocking.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

namespace ZelDockMenu {
namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ZelDockWidget", text);
}

bool canFloat(const ZelDockWidget *dock)
{
    return dock->features().testFlag(QDockWidget::DockWidgetFloatable);
}

void addFloat(QMenu *menu, ZelDockWidget *dock)
{
    QAction *action = menu->addAction(tr("Float"), dock, [dock] {
        if (!dock->isFloating())
            Q_EMIT dock->zelTitleWidget()->toggleFloating();
    });
    action->setEnabled(!dock->isFloating() && canFloat(dock) && ZelDocking::isEnabled());
}

void addDock(QMenu *menu, ZelDockWidget *dock, const QString &text, Qt::DockWidgetArea area)
{
    QMainWindow *window = ZelDocking::mainWindowOf(dock->parentWidget());
    QAction *action = menu->addAction(text, dock, [dock, area] {
        QMainWindow *window = ZelDocking::mainWindowOf(dock->parentWidget());
        if (!window)
            return;
        window->addDockWidget(area, dock);
        dock->setFloating(false);
        dock->show();
    });
    action->setEnabled(window && ZelDocking::isEnabled() && dock->isAreaAllowed(area) &&
                       (dock->isFloating() || window->dockWidgetArea(dock) != area));
}

void addScreens(QMenu *menu, ZelDockWidget *dock)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.size() < 2)
        return;
    QMenu *choice = menu->addMenu(tr("Move to Screen"));
    choice->setEnabled(dock->isFloating() || (canFloat(dock) && ZelDocking::isEnabled()));
    for (QScreen *screen : screens) {
        const QPointer<QScreen> target(screen);
        QAction *action = choice->addAction(screen->name(), dock, [dock, target] {
            if (!target)
                return;
            dock->setFloating(true);
            dock->show();
            centerWidgetOnScreen(dock, target);
        });
        action->setEnabled(!dock->isFloating() || widgetScreen(dock) != screen);
    }
}

void addReset(QMenu *menu, ZelDockWidget *dock)
{
    QAction *action = menu->addAction(tr("Reset Position"), dock, [dock] {
        const QMainWindow *window = ZelDocking::mainWindowOf(dock->parentWidget());
        if (window && dock->isFloating())
            dock->move(window->geometry().center() - dock->rect().center());
    });
    action->setEnabled(dock->isFloating());
}

} // namespace

QMenu *create(ZelDockWidget *dock)
{
    auto *menu = new ZelMenu(dock);
    addFloat(menu, dock);
    addDock(menu, dock, tr("Dock Left"), Qt::LeftDockWidgetArea);
    addDock(menu, dock, tr("Dock Right"), Qt::RightDockWidgetArea);
    addScreens(menu, dock);
    addReset(menu, dock);
    if (auto *tornOut = qobject_cast<ZelDockWidgetFromTab *>(dock)) {
        menu->addSeparator();
        menu->addAction(tr("Put Back"), tornOut, &ZelDockWidgetFromTab::forceRestoreInView);
    }
    return menu;
}

} // namespace ZelDockMenu
