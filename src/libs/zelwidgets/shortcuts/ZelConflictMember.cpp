#include "ZelConflictMember.h"

#include "ZelAction.h"
#include "ZelShortcut.h"

#include <QAction>
#include <QWidget>

ConflictMember::ConflictMember(QObject *object)
    : action_(qobject_cast<ZelAction *>(object))
    , shortcut_(qobject_cast<ZelShortcut *>(object))
    , qAction_(action_ ? action_->qAction() : nullptr)
    , savedContext_(qAction_ ? qAction_->shortcutContext() : Qt::WindowShortcut)
{}

bool ConflictMember::isAlive() const
{
    return (action_ && qAction_) || shortcut_;
}

bool ConflictMember::isSame(const ConflictMember &other) const
{
    return action_ == other.action_ && shortcut_ == other.shortcut_;
}

bool ConflictMember::isObject(const QObject *object) const
{
    return object && this->object() == object;
}

bool ConflictMember::sharesQAction(const ConflictMember &other) const
{
    return qAction_ && qAction_ == other.qAction_;
}

bool ConflictMember::isSameThing(const ConflictMember &other) const
{
    if (shortcut_ && other.shortcut_)
        return shortcut_ == other.shortcut_;
    const QAction *mine = shortcut_ ? shortcut_->ownAction() : qAction_.data();
    const QAction *others = other.shortcut_ ? other.shortcut_->ownAction() : other.qAction_.data();
    return mine && mine == others;
}

QObject *ConflictMember::object() const
{
    return action_ ? static_cast<QObject *>(action_) : shortcut_.data();
}

QKeySequence ConflictMember::key() const
{
    if (qAction_)
        return qAction_->shortcut();
    return shortcut_ ? shortcut_->key() : QKeySequence();
}

bool ConflictMember::hasKey() const
{
    return !key().isEmpty();
}

QString ConflictMember::id() const
{
    if (action_)
        return action_->id();
    return shortcut_ ? shortcut_->id() : QString();
}

QString ConflictMember::text() const
{
    if (qAction_)
        return qAction_->text();
    return shortcut_ ? shortcut_->text() : QString();
}

QWidget *ConflictMember::scope() const
{
    if (action_)
        return action_->scope();
    return shortcut_ ? shortcut_->scope() : nullptr;
}

bool ConflictMember::enabled() const
{
    if (qAction_)
        return qAction_->isEnabled();
    return shortcut_ && shortcut_->isEnabled();
}

Qt::ShortcutContext ConflictMember::context() const
{
    return shortcut_ ? shortcut_->context() : savedContext_;
}

void ConflictMember::neutralize()
{
    if (qAction_)
        qAction_->setShortcutContext(Qt::WidgetShortcut);
    if (shortcut_)
        shortcut_->setKey(QKeySequence());
}

void ConflictMember::restore(const QKeySequence &key)
{
    if (qAction_)
        qAction_->setShortcutContext(savedContext_);
    if (shortcut_)
        shortcut_->setKey(key);
}

void ConflictMember::fire() const
{
    // The first slot may take the rest away.
    const QPointer<ZelShortcut> shortcut = shortcut_;
    if (qAction_)
        qAction_->activate(QAction::Trigger);
    if (shortcut)
        Q_EMIT shortcut->activated();
}
