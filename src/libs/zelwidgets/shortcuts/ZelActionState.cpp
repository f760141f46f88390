#include "ZelActionState.h"

#include <QAction>
#include <QPointer>
#include <QVariant>

ZelActionState::ZelActionState(bool checkable, QObject *parent)
    : QObject(parent)
    , checkable_(checkable)
{}

ZelActionState::~ZelActionState() = default;

QAction *ZelActionState::createAction()
{
    auto *action = new QAction(this);
    action->setEnabled(enabled_);
    action->setCheckable(checkable_);
    action->setChecked(checked_);
    action->setData(QVariant::fromValue(QPointer<ZelActionState>(this)));
    connect(this, &ZelActionState::enabledStateChanged, action, &QAction::setEnabled);
    connect(action, &QAction::triggered, this, &ZelActionState::triggered);
    connect(action, &QAction::toggled, this, &ZelActionState::setChecked);
    if (checkable_)
        connect(this, &ZelActionState::checkStateChanged, action, &QAction::setChecked);
    return action;
}

void ZelActionState::setChecked(bool b)
{
    if (!checkable_ || checked_ == b)
        return;
    checked_ = b;
    Q_EMIT checkStateChanged(b);
}

void ZelActionState::setEnabled(bool b)
{
    if (enabled_ == b)
        return;
    enabled_ = b;
    Q_EMIT enabledStateChanged(b);
}

void ZelActionState::setCheckedAsync(bool b)
{
    QMetaObject::invokeMethod(this, "setChecked", Qt::QueuedConnection, Q_ARG(bool, b));
}

void ZelActionState::setEnabledAsync(bool b)
{
    QMetaObject::invokeMethod(this, "setEnabled", Qt::QueuedConnection, Q_ARG(bool, b));
}
