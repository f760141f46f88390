#include "ZelPaneWalker.h"

#include "docks/ZelDocking.h"
#include "docks/ZelPaneFocus.h"
#include "docks/ZelTabWidgetBase.h"
#include "shortcuts/ZelAction.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>
#include <tuple>

namespace {

bool isInside(const QWidget *widget, const QList<QWidget *> &panes)
{
    return std::any_of(panes.cbegin(), panes.cend(),
                       [widget](const QWidget *pane) { return pane->isAncestorOf(widget); });
}

/// The innermost of the panes that the widget is in or is.
QWidget *paneOf(const QWidget *widget, const QList<QWidget *> &panes)
{
    for (auto *place = const_cast<QWidget *>(widget); place; place = place->parentWidget()) {
        if (panes.contains(place))
            return place;
        if (place->isWindow())
            break;
    }
    return nullptr;
}

ZelPaneFocus::Filter ownPartOf(QWidget *pane, const QList<QWidget *> &panes)
{
    return [pane, panes](const QWidget *widget) {
        return paneOf(widget, panes) == pane;
    };
}

} // namespace

ZelPaneWalker::ZelPaneWalker(QMainWindow *window)
    : QObject(window)
    , window_(window)
{
    addKey(QStringLiteral("if.oNextPane"), tr("Next Pane"), Qt::Key_F6, &ZelPaneWalker::goToNext);
    addKey(QStringLiteral("if.pPreviousPane"), tr("Previous Pane"), Qt::SHIFT | Qt::Key_F6,
           &ZelPaneWalker::goToPrevious);
}

void ZelPaneWalker::addKey(const QString &id, const QString &text, const QKeySequence &key,
                           void (ZelPaneWalker::*slot)())
{
    auto *action = new ZelAction(id, text, key, this);
    connect(action, qOverload<>(&ZelAction::triggered), this, slot);
    window_->addAction(action->qAction());
}

void ZelPaneWalker::addPane(QWidget *pane)
{
    if (pane && !added_.contains(pane))
        added_.append(pane);
}

QList<QWidget *> ZelPaneWalker::candidates() const
{
    QList<QWidget *> docks;
    for (auto *dock : window_->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (ZelDocking::isInFront(dock))
            docks.append(dock);
    }
    QList<QWidget *> panels;
    for (auto *panel : window_->findChildren<ZelTabWidgetBase *>()) {
        if (panel->isVisible() && panel->window() == window_ && !isInside(panel, docks) &&
            !isInside(panel, panels))
            panels.append(panel);
    }
    QList<QWidget *> all = docks + panels;
    for (QWidget *pane : added_) {
        if (pane && pane->isVisible() && !all.contains(pane))
            all.append(pane);
    }
    if (window_->centralWidget() && !all.contains(window_->centralWidget()))
        all.append(window_->centralWidget());
    return all;
}

QList<QWidget *> ZelPaneWalker::panes() const
{
    if (!window_)
        return {};
    const QList<QWidget *> all = candidates();
    QList<QWidget *> panes;
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(panes), [&all](QWidget *pane) {
        return ZelPaneFocus::target(pane, ownPartOf(pane, all)) != nullptr;
    });
    const bool fromRight = window_->isRightToLeft();
    // A pane around others stands where its own part is, so that the middle is between the panels
    // inside it.
    const auto place = [&](QWidget *pane) {
        const bool isOuter = std::any_of(all.cbegin(), all.cend(), [pane](const QWidget *other) {
            return pane->isAncestorOf(other);
        });
        const QWidget *seen = isOuter ? ZelPaneFocus::target(pane, ownPartOf(pane, all)) : pane;
        const QRect area(seen->mapTo(seen->window(), QPoint(0, 0)), seen->size());
        return std::tuple(pane->window() != window_, fromRight ? -area.right() : area.left(),
                          area.top());
    };
    std::stable_sort(panes.begin(), panes.end(),
                     [&](QWidget *a, QWidget *b) { return place(a) < place(b); });
    return panes;
}

void ZelPaneWalker::goToNext()
{
    go(1);
}

void ZelPaneWalker::goToPrevious()
{
    go(-1);
}

void ZelPaneWalker::go(int step)
{
    const QList<QWidget *> all = panes();
    if (all.isEmpty())
        return;
    const QWidget *focus = QApplication::focusWidget();
    const int count = int(all.size());
    const int present = int(all.indexOf(focus ? paneOf(focus, all) : nullptr));
    const int next = present < 0 ? (step > 0 ? 0 : count - 1) : (present + step + count) % count;
    QWidget *pane = all[next];
    ZelPaneFocus::enter(pane, ownPartOf(pane, all));
}
