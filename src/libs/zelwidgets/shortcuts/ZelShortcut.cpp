#include "ZelShortcut.h"

#include "ZelAction.h"
#include "ZelShortcutHandler_p.h"

#include <QAction>
#include <QDebug>
#include <QShortcutEvent>
#include <QWidget>

ZelShortcut::ZelShortcut(const QString &id, QString text, const QKeySequence &key, QWidget *parent,
                         const char *member, const char *ambiguousMember)
    : QShortcut(key, parent, member, ambiguousMember, Qt::WindowShortcut)
    , id_(id)
    , text_(std::move(text))
{
    enroll();
}

ZelShortcut::ZelShortcut(const QString &id, QAction *action, QWidget *parent, const char *member)
    : QShortcut(action->shortcut(), parent, member)
    , id_(id)
    , text_(action->text())
    , ownAction_(action)
{
    new ZelAction(id, action, this);
    setKey(action->shortcut());
    // In a menu or a view the action takes the key, too; Qt then tells the two in turn.
    action->installEventFilter(this);
    connect(this, &QShortcut::activatedAmbiguously, this, [this] {
        if (ownAction_ && !ownAction_->associatedObjects().isEmpty())
            Q_EMIT activated();
    });
    enroll();
}

ZelShortcut::ZelShortcut(ZelAction *action, QWidget *parent, const char *member)
    : QShortcut(QKeySequence(), parent, member)
    , id_(action->id())
{
    if (const QAction *qAction = action->qAction()) {
        setKey(qAction->shortcut());
        text_ = qAction->text();
    }
    enroll();
}

ZelShortcut::ZelShortcut(QAction *action, QWidget *parent, const char *member)
    : QShortcut(action->shortcut(), parent, member)
    , id_(action->property("iD").toString())
    , text_(action->text())
{
    if (id_.isEmpty())
        qDebug() << "Does not know action " << text_ << " with keySeq " << key();
    else
        enroll();
}

ZelShortcut::~ZelShortcut()
{
    ZelShortcutHandlerPrivate::hasDead = true;
}

void ZelShortcut::enroll()
{
    ZelShortcutHandler::instance()->registerOrChangeShortcut(*this);
}

QAction *ZelShortcut::ownAction() const
{
    return ownAction_;
}

void ZelShortcut::setText(QString text)
{
    text_ = std::move(text);
}

QWidget *ZelShortcut::scope() const
{
    return scope_ ? scope_.data() : qobject_cast<QWidget *>(parent());
}

void ZelShortcut::setScope(QWidget *scope)
{
    scope_ = scope;
}

bool ZelShortcut::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ownAction_ && event->type() == QEvent::Shortcut) {
        const auto *press = static_cast<QShortcutEvent *>(event);
        if (press->isAmbiguous() && press->key() == key() && isEnabled()) {
            Q_EMIT activated();
            return true;
        }
    }
    return QShortcut::eventFilter(watched, event);
}

void ZelShortcut::hardChangeId(QString id)
{
    id_ = std::move(id);
}
