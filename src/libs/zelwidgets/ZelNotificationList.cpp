#include "ZelNotificationList.h"

#include "ZelNotificationAction.h"

#include <algorithm>

ZelNotificationList::ZelNotificationList(QObject *parent)
    : QObject(parent)
{}

void ZelNotificationList::addAction(ZelNotificationAction *action)
{
    if (!action || actions_.contains(action))
        return;
    actions_.append(action);
    connect(action, &ZelNotificationAction::changed, this, &ZelNotificationList::changed);
    connect(action, &ZelNotificationAction::priorityChanged, this,
            &ZelNotificationList::slotPriorityChanged);
    sort();
    Q_EMIT changed();
}

void ZelNotificationList::removeAction(ZelNotificationAction *action)
{
    // An entry whose action died equals null.
    if (action && actions_.removeOne(action))
        disconnect(action, nullptr, this, nullptr);
    Q_EMIT changed();
}

const ZelNotificationAction *ZelNotificationList::at(int index) const
{
    return index >= 0 && index < actions_.size() ? actions_.at(index).data() : nullptr;
}

int ZelNotificationList::size() const
{
    return int(actions_.size());
}

void ZelNotificationList::trigger(int index) const
{
    if (!at(index))
        return;
    // A slot may delete the action, or change the list.
    const QPointer<ZelNotificationAction> action = actions_.at(index);
    if (action->hasFlag(ZelNotificationAction::Toggle))
        action->setToggleState(!action->toggleState());
    if (action)
        Q_EMIT action->triggered();
}

void ZelNotificationList::pruneActions()
{
    actions_.removeIf([](const auto &action) { return action.isNull(); });
}

void ZelNotificationList::slotPriorityChanged()
{
    sort();
    Q_EMIT changed();
}

void ZelNotificationList::sort()
{
    // Empty entries have no order; they stay where they are and the others are sorted around them.
    QList<ZelNotificationAction *> alive;
    for (const auto &action : std::as_const(actions_)) {
        if (action)
            alive.append(action);
    }
    std::stable_sort(alive.begin(), alive.end(), &ZelNotificationAction::priorityLessThan);
    auto next = alive.cbegin();
    for (auto &action : actions_) {
        if (action)
            action = *next++;
    }
}
