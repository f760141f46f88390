#include "ZelPaneFocus.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>

namespace ZelPaneFocus {
namespace {

bool isReachable(const QWidget *widget, Qt::FocusPolicy policy)
{
    return (widget->focusPolicy() & policy) && !widget->focusProxy() && widget->isEnabled() &&
           widget->isVisible();
}

QWidget *contentOf(QWidget *pane)
{
    if (const auto *dock = qobject_cast<QDockWidget *>(pane))
        return dock->widget();
    if (const auto *tabs = qobject_cast<QTabWidget *>(pane))
        return tabs->currentWidget();
    return nullptr;
}

QWidget *targetIn(QWidget *pane, const Filter &filter)
{
    const auto fits = [&](const QWidget *widget, Qt::FocusPolicy policy) {
        return isReachable(widget, policy) && (!filter || filter(widget));
    };
    QWidget *last = pane->focusWidget();
    if (last && fits(last, Qt::StrongFocus))
        return last;
    if (fits(pane, Qt::TabFocus))
        return pane;
    // The chain goes through the whole window; the pane's own part may begin anywhere in it.
    for (QWidget *next = pane->nextInFocusChain(); next && next != pane;
         next = next->nextInFocusChain()) {
        if (pane->isAncestorOf(next) && fits(next, Qt::TabFocus))
            return next;
    }
    return nullptr;
}

} // namespace

QWidget *target(QWidget *pane, const Filter &filter)
{
    QWidget *content = contentOf(pane);
    QWidget *inside = content ? target(content, filter) : nullptr;
    return inside ? inside : targetIn(pane, filter);
}

bool enter(QWidget *pane, const Filter &filter)
{
    QWidget *widget = target(pane, filter);
    if (!widget)
        return false;
    widget->activateWindow();
    widget->setFocus(Qt::ShortcutFocusReason);
    return true;
}

void enterAfterMenus(QWidget *pane)
{
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu) {
        enter(pane);
        return;
    }
    QObject::connect(
        menu, &QMenu::aboutToHide, pane, [pane] { enterAfterMenus(pane); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

bool isIn(const QWidget *pane)
{
    const QWidget *focus = QApplication::focusWidget();
    return pane && focus && (focus == pane || pane->isAncestorOf(focus));
}

bool isClickOnCurrent(const QTabBar *bar, const QMouseEvent *release)
{
    return release->button() == Qt::LeftButton && bar->currentIndex() >= 0 &&
           bar->tabAt(release->position().toPoint()) == bar->currentIndex();
}

bool openMenuByKey(QKeyEvent *event)
{
    if (event->key() != Qt::Key_F10 || event->modifiers() != Qt::ShiftModifier)
        return false;
    event->accept();
    if (QWidget *focus = QApplication::focusWidget()) {
        const QPoint middle = focus->rect().center();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle, focus->mapToGlobal(middle));
        QCoreApplication::sendEvent(focus, &menu);
    }
    return true;
}

} // namespace ZelPaneFocus
