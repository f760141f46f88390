#include "ZelNotificationAction.h"

ZelNotificationAction::ZelNotificationAction(const QIcon &icon, const QString &toolTip,
                                             QObject *parent)
    : QObject(parent)
    , toolTip_(toolTip)
{
    setIcon(icon);
}

bool ZelNotificationAction::hasFlag(Flag flag) const
{
    return flag == NoFlag ? flags_ == NoFlag : (flags_ & flag) == flag;
}

void ZelNotificationAction::setIcon(const QIcon &icon)
{
    if (icon.cacheKey() == icon_.cacheKey())
        return;
    icon_ = icon;
    Q_EMIT changed();
}

void ZelNotificationAction::setToolTip(const QString &toolTip)
{
    if (toolTip == toolTip_)
        return;
    toolTip_ = toolTip;
    Q_EMIT changed();
}

void ZelNotificationAction::setPriority(int priority)
{
    if (priority == priority_)
        return;
    priority_ = priority;
    Q_EMIT priorityChanged();
}

void ZelNotificationAction::setVisible(bool visible)
{
    if (visible == visible_)
        return;
    visible_ = visible;
    Q_EMIT changed();
}

void ZelNotificationAction::setToggleState(bool on)
{
    if (on == toggleState_)
        return;
    toggleState_ = on;
    Q_EMIT changed();
}

void ZelNotificationAction::setFlag(Flag flag, bool on)
{
    if (hasFlag(flag) == on)
        return;
    flags_ = on ? flags_ | flag : flags_ & ~flag;
    Q_EMIT changed();
}

bool ZelNotificationAction::priorityLessThan(const ZelNotificationAction *left,
                                             const ZelNotificationAction *right)
{
    return left && right && left->priority_ < right->priority_;
}
