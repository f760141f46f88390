#include "ZelDockHold.h"

#include "docks/ZelDockWidget.h"
#include "docks/ZelDocking.h"

#include <QLayout>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <vector>

namespace ZelDockHold {
namespace {

constexpr std::chrono::milliseconds holdTime(25);

/// What one leaving dock fixes, until its timer ends it. The timer dies with its window.
struct Hold
{
    QPointer<QTimer> timer;
    /// A window in which docks float together goes when the last but one of them leaves it.
    QPointer<QWidget> parent;
    QList<QPointer<ZelDockWidget>> docks;
};

std::vector<Hold> &holds()
{
    static std::vector<Hold> all;
    return all;
}

bool standsInLayout(const ZelDockWidget *dock)
{
    return dock->isVisible() && !dock->isFloating();
}

/// False if its size was fixed already.
bool fix(ZelDockWidget *dock)
{
    const QSize least = dock->minimumSize();
    const QSize most = dock->maximumSize();
    if (dock->isAtSide())
        dock->setFixedWidth(dock->width());
    else
        dock->setFixedHeight(dock->height());
    return dock->isAtSide() ? least.width() != most.width() : least.height() != most.height();
}

void letGo(ZelDockWidget *dock)
{
    if (dock->minimumWidth() == dock->maximumWidth()) {
        dock->setMinimumWidth(0);
        dock->setMaximumWidth(QWIDGETSIZE_MAX);
    }
    if (dock->minimumHeight() == dock->maximumHeight()) {
        dock->setMinimumHeight(0);
        dock->setMaximumHeight(QWIDGETSIZE_MAX);
    }
}

QList<ZelDockWidget *> docksOf(const QWidget *parent)
{
    return parent->findChildren<ZelDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

QWidget *windowOf(QWidget *parent)
{
    QMainWindow *window = ZelDocking::mainWindowOf(parent);
    return window ? window : parent;
}

/// Takes out the holds that the condition names, and those whose window is gone.
template <typename Condition>
std::vector<Hold> take(Condition condition)
{
    std::vector<Hold> &all = holds();
    const auto others =
        std::stable_partition(all.begin(), all.end(), [&condition](const Hold &hold) {
            return hold.timer && !condition(hold);
        });
    std::vector<Hold> taken(std::make_move_iterator(others), std::make_move_iterator(all.end()));
    all.erase(others, all.end());
    return taken;
}

void letGo(const Hold &hold)
{
    for (const QPointer<ZelDockWidget> &dock : hold.docks) {
        if (dock)
            letGo(dock.data());
    }
}

void timeOut(const QTimer *timer)
{
    for (const Hold &hold : take([timer](const Hold &hold) { return hold.timer == timer; })) {
        letGo(hold);
        if (hold.parent)
            release(hold.parent);
        if (hold.timer)
            hold.timer->deleteLater();
    }
}

QTimer *startTimer(QWidget *window)
{
    auto *timer = new QTimer(window);
    timer->setSingleShot(true);
    timer->callOnTimeout(timer, [timer] { timeOut(timer); });
    timer->start(holdTime);
    return timer;
}

} // namespace

void holdOthers(ZelDockWidget *leaving)
{
    QWidget *parent = leaving->parentWidget();
    if (!parent || ZelDocking::isInRestore() || !standsInLayout(leaving))
        return;
    Hold hold{startTimer(windowOf(parent)), parent, {}};
    for (ZelDockWidget *dock : docksOf(parent)) {
        if (dock == leaving || !standsInLayout(dock))
            continue;
        if (fix(dock))
            hold.docks.append(dock);
    }
    holds().push_back(std::move(hold));
}

bool isPending(const QWidget *window)
{
    return std::any_of(holds().cbegin(), holds().cend(), [window](const Hold &hold) {
        return hold.timer && hold.timer->parent() == window;
    });
}

void end(QWidget *window)
{
    if (!isPending(window))
        return;
    // The room of what has left is shared out while the others stand still.
    if (window->layout())
        window->layout()->activate();
    const auto isOfWindow = [window](const Hold &hold) {
        return hold.timer->parent() == window;
    };
    for (const Hold &hold : take(isOfWindow)) {
        delete hold.timer;
        letGo(hold);
    }
    if (window->layout())
        window->layout()->activate();
}

void release(QWidget *parent)
{
    for (ZelDockWidget *dock : docksOf(parent))
        letGo(dock);
}

} // namespace ZelDockHold
