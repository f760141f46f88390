#include "ZelDockMenu.h"

#include "ZelMenu.h"
#include "ZelWindowPlacement.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDockWidgetTitle.h"
#include "docks/ZelPaneFocus.h"
#include "docks/ZelTabOrder.h"
#include "docks/ZelTextIconTabWidget.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMainWindow>
#include <QPointer>
#include <QScreen>

#include <functional>

namespace ZelDockMenu {
namespace {

/// What an entry does to a dock, however the dock comes about.
using Deed = std::function<void(ZelDockWidget *)>;
/// Runs a deed on the dock that the menu is about.
using Runner = std::function<void(const Deed &)>;

constexpr Qt::DockWidgetArea sides[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea};

QString tr(const char *text)
{
    return QCoreApplication::translate("ZelDockWidget", text);
}

QString withReason(const QString &text, bool globalPositions)
{
    return globalPositions ? text : tr("%1 (This Desktop Places Windows Itself)").arg(text);
}

bool canFloat(const ZelDockWidget *dock)
{
    return dock->features().testFlag(QDockWidget::DockWidgetFloatable) && ZelDocking::isEnabled();
}

QString sideText(Qt::DockWidgetArea side)
{
    return side == Qt::LeftDockWidgetArea ? tr("Dock Left") : tr("Dock Right");
}

void floatDock(ZelDockWidget *dock)
{
    if (!dock->isFloating())
        Q_EMIT dock->zelTitleWidget()->toggleFloating();
}

void dockAt(ZelDockWidget *dock, Qt::DockWidgetArea side)
{
    QMainWindow *window = ZelDocking::mainWindowOf(dock->parentWidget());
    if (!window)
        return;
    window->addDockWidget(side, dock);
    dock->setFloating(false);
    dock->show();
}

void moveToScreen(ZelDockWidget *dock, QScreen *screen)
{
    dock->setFloating(true);
    dock->show();
    centerWidgetOnScreen(dock, screen);
}

/// A window of its own, or none any more, loses the focus that the dock had.
Runner runnerFor(ZelDockWidget *dock)
{
    // Once the menu is open, it has the focus itself.
    return [dock, hadFocus = ZelPaneFocus::isIn(dock)](const Deed &deed) {
        const QPointer<ZelDockWidget> guard(dock);
        deed(dock);
        if (guard && hadFocus)
            ZelPaneFocus::enterAfterMenus(guard);
    };
}

/// Makes the dock of the page first.
Runner runnerFor(ZelTextIconTabWidget *tabs, QWidget *page)
{
    return [tabs, page = QPointer<QWidget>(page)](const Deed &deed) {
        const int tab = page ? tabs->indexOf(page) : -1;
        const QPointer<ZelDockWidget> dock(tab < 0 ? nullptr : tabs->changeTab2Window(tab));
        if (!dock)
            return;
        deed(dock);
        if (dock)
            ZelPaneFocus::enterAfterMenus(dock);
    };
}

void addScreens(QMenu *menu, QObject *context, const Runner &run, const QScreen *present,
                bool isPossible, bool globalPositions)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.size() < 2)
        return;
    QMenu *choice = menu->addMenu(withReason(tr("Move to Screen"), globalPositions));
    choice->setEnabled(isPossible && globalPositions);
    for (QScreen *screen : screens) {
        const QPointer<QScreen> target(screen);
        QAction *action = choice->addAction(screen->name(), context, [run, target] {
            if (target)
                run([target](ZelDockWidget *dock) { moveToScreen(dock, target); });
        });
        action->setEnabled(screen != present);
    }
}

void addReset(QMenu *menu, ZelDockWidget *dock, bool globalPositions)
{
    QAction *action =
        menu->addAction(withReason(tr("Reset Position"), globalPositions), dock, [dock] {
            const QMainWindow *window = ZelDocking::mainWindowOf(dock->parentWidget());
            if (window && dock->isFloating())
                dock->move(window->geometry().center() - dock->rect().center());
        });
    action->setEnabled(dock->isFloating() && globalPositions);
}

void addMove(QMenu *menu, ZelTextIconTabWidget *tabs, QWidget *page, const QString &text, int step)
{
    const int target = tabs->indexOf(page) + step;
    QAction *action = menu->addAction(text, tabs, [tabs, page = QPointer<QWidget>(page), step] {
        const int tab = page ? tabs->indexOf(page) : -1;
        ZelTabOrder::move(tabs, tab, tab + step);
    });
    action->setEnabled(target >= 0 && target < tabs->count());
}

} // namespace

QMenu *create(ZelDockWidget *dock, bool globalPositions)
{
    auto *menu = new ZelMenu(dock);
    const Runner run = runnerFor(dock);
    menu->addAction(tr("Float"), dock, [run] { run(floatDock); })
        ->setEnabled(!dock->isFloating() && canFloat(dock));
    const QMainWindow *window = ZelDocking::mainWindowOf(dock->parentWidget());
    for (const Qt::DockWidgetArea side : sides) {
        QAction *action = menu->addAction(sideText(side), dock, [run, side] {
            run([side](ZelDockWidget *dock) { dockAt(dock, side); });
        });
        action->setEnabled(window && ZelDocking::isEnabled() && dock->isAreaAllowed(side) &&
                           (dock->isFloating() || window->dockWidgetArea(dock) != side));
    }
    addScreens(menu, dock, run, dock->isFloating() ? widgetScreen(dock) : nullptr,
               dock->isFloating() || canFloat(dock), globalPositions);
    addReset(menu, dock, globalPositions);
    if (auto *tornOut = qobject_cast<ZelDockWidgetFromTab *>(dock)) {
        menu->addSeparator();
        const bool hadFocus = ZelPaneFocus::isIn(tornOut);
        menu->addAction(tr("Put Back"), tornOut, [tornOut, hadFocus] {
            const QPointer<QWidget> page(tornOut->page());
            tornOut->forceRestoreInView();
            if (page && hadFocus)
                ZelPaneFocus::enterAfterMenus(page);
        });
    }
    return menu;
}

void open(ZelDockWidget *dock, const QPoint &globalPoint)
{
    QMenu *menu = create(dock);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(globalPoint);
}

void openBelowTitle(ZelDockWidget *dock)
{
    const QWidget *title = dock->zelTitleWidget();
    open(dock, title->mapToGlobal(title->rect().bottomLeft()));
}

void addTabEntries(QMenu *menu, ZelTextIconTabWidget *tabs, QWidget *page, bool globalPositions)
{
    const bool canLeave =
        tabs->count() > 1 && ZelDocking::isEnabled() && ZelDocking::mainWindowOf(tabs);
    const Runner run = runnerFor(tabs, page);
    menu->addSeparator();
    menu->addAction(tr("Tear Out"), tabs, [run] { run([](ZelDockWidget *) {}); })
        ->setEnabled(canLeave);
    for (const Qt::DockWidgetArea side : sides) {
        menu->addAction(sideText(side), tabs,
                        [run, side] { run([side](ZelDockWidget *dock) { dockAt(dock, side); }); })
            ->setEnabled(canLeave);
    }
    addScreens(menu, tabs, run, nullptr, canLeave, globalPositions);
    const int leftwards = tabs->isRightToLeft() ? 1 : -1;
    addMove(menu, tabs, page, tr("Move Tab Left"), leftwards);
    addMove(menu, tabs, page, tr("Move Tab Right"), -leftwards);
}

} // namespace ZelDockMenu
