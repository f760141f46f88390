#include "ZelAction.h"

#include "ZelShortcutHandler_p.h"

#include <QAction>
#include <QEvent>
#include <QWidget>

namespace {

/// What is about the object itself, and not about the action that it stands for.
bool concernsTheObject(QEvent::Type type)
{
    switch (type) {
    case QEvent::DeferredDelete:
    case QEvent::MetaCall:
    case QEvent::ThreadChange:
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:
        return true;
    default:
        return false;
    }
}

} // namespace

ZelAction::ZelAction(const QString &id, const QString &text, QKeySequence key, QObject *parent)
    : QObject(parent)
    , id_(id)
    , action_(new QAction(text, this))
{
    action_->setShortcut(key);
    setUp();
}

ZelAction::ZelAction(const QString &id, QAction *action, QObject *parent)
    : QObject(parent)
    , id_(id)
    , action_(action)
{
    setUp();
}

ZelAction::~ZelAction()
{
    ZelShortcutHandlerPrivate::hasDead = true;
    // Handlers of conflicts give the action its context back once they hear of this end.
    if (action_)
        action_->disconnect(this);
}

void ZelAction::setUp()
{
    if (!action_)
        return;
    action_->setProperty("iD", id_);
    connect(action_, &QAction::triggered, this, [this](bool checked) {
        const QPointer<ZelAction> self(this);
        Q_EMIT triggered(checked);
        if (self)
            Q_EMIT triggered();
    });
    connect(action_, &QAction::toggled, this, &ZelAction::toggled);
    connect(action_, &QAction::hovered, this, &ZelAction::hovered);
    connect(action_, &QAction::changed, this, &ZelAction::changed);
    ZelShortcutHandler::instance()->registerActionOrSetShortcut(*this);
    connect(action_, &QObject::destroyed, this, &ZelAction::slotActionDestroyed);
}

void ZelAction::slotActionDestroyed()
{
    action_ = nullptr;
}

bool ZelAction::event(QEvent *event)
{
    if (concernsTheObject(event->type()))
        return QObject::event(event);
    if (!action_ || action_->parent() != this)
        return false;
    return static_cast<QObject *>(action_)->event(event);
}

bool ZelAction::eventFilter(QObject *watched, QEvent *event)
{
    return QObject::eventFilter(watched, event);
}

void ZelAction::hover()
{
    if (action_)
        action_->activate(QAction::Hover);
}

void ZelAction::setChecked(bool b)
{
    if (action_)
        action_->setChecked(b);
}

void ZelAction::setDisabled(bool b)
{
    setEnabled(!b);
}

void ZelAction::setEnabled(bool b)
{
    if (action_)
        action_->setEnabled(b);
}

void ZelAction::setVisible(bool b)
{
    if (action_)
        action_->setVisible(b);
}

void ZelAction::toggle()
{
    if (action_)
        action_->toggle();
}

void ZelAction::trigger()
{
    if (action_ && action_->isEnabled())
        action_->activate(QAction::Trigger);
}

void ZelAction::setScope(QWidget *wdg)
{
    scopeWidget_ = wdg;
}

QWidget *ZelAction::scope() const
{
    if (!action_)
        return nullptr;
    if (scopeWidget_)
        return scopeWidget_;
    for (QObject *ancestor = action_->parent(); ancestor; ancestor = ancestor->parent()) {
        if (auto *widget = qobject_cast<QWidget *>(ancestor))
            return widget;
    }
    return nullptr;
}
