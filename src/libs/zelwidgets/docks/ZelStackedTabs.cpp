#include "ZelStackedTabs.h"

#include "docks/ZelDocking.h"
#include "docks/ZelPaneFocus.h"

#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QTabBar>

#include <algorithm>
#include <limits>

namespace {

int gapBetween(const QRect &a, const QRect &b)
{
    const int across = std::max(a.left() - b.right(), b.left() - a.right());
    const int down = std::max(a.top() - b.bottom(), b.top() - a.bottom());
    return std::max(across, down);
}

/// The dock in front of those that the tabs stand for: what separates docks keeps all others away
/// from the tabs.
QDockWidget *dockAt(const QTabBar *bar)
{
    const QWidget *window = bar->parentWidget();
    QDockWidget *nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (auto *dock : window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        const int gap = gapBetween(bar->geometry(), dock->geometry());
        if (!dock->isFloating() && ZelDocking::isInFront(dock) && gap < least) {
            nearest = dock;
            least = gap;
        }
    }
    return nearest;
}

} // namespace

ZelStackedTabs::ZelStackedTabs(QMainWindow *window)
    : QObject(window)
{
    window->installEventFilter(this);
    for (auto *bar : window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly))
        bar->installEventFilter(this);
}

void ZelStackedTabs::watch(QMainWindow *window)
{
    if (window && !window->findChild<ZelStackedTabs *>(QString(), Qt::FindDirectChildrenOnly))
        new ZelStackedTabs(window);
}

/// A bar that has no group any more is emptied and hidden by the layout, but it is shown again if
/// that happens while all bars are being shown.
void ZelStackedTabs::hideIfUnused(QTabBar *bar)
{
    const auto hide = [bar] {
        if (bar->count() == 0)
            bar->hide();
    };
    if (bar->count() == 0)
        QMetaObject::invokeMethod(bar, hide, Qt::QueuedConnection);
}

bool ZelStackedTabs::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        if (auto *bar = qobject_cast<QTabBar *>(static_cast<QChildEvent *>(event)->child()))
            bar->installEventFilter(this);
    } else if (event->type() == QEvent::Show) {
        if (auto *bar = qobject_cast<QTabBar *>(object))
            hideIfUnused(bar);
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const QPointer<QTabBar> bar(qobject_cast<QTabBar *>(object));
        const auto *release = static_cast<QMouseEvent *>(event);
        // Once the bar itself has seen the release, and the docks have changed places.
        if (bar && ZelPaneFocus::isClickOnCurrent(bar, release)) {
            QMetaObject::invokeMethod(
                this,
                [bar] {
                    QDockWidget *dock = bar && bar->parentWidget() ? dockAt(bar) : nullptr;
                    if (dock)
                        ZelPaneFocus::enter(dock);
                },
                Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(object, event);
}
