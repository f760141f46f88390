#include "ZelAction.h"
#include "ZelConflictChoice.h"
#include "ZelMouseAction.h"
#include "ZelShortcut.h"
#include "ZelShortcutConflictHandler.h"
#include "ZelShortcutHandler_p.h"
#include "ZelShortcutScopes.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr qsizetype handlerLimit = 3001;

/// Whether the two are a shortcut and the action that it has made of its own.
bool isOwnPair(const QObject *a, const QObject *b)
{
    return (a->parent() == b && qobject_cast<const ZelShortcut *>(b)) ||
           (b->parent() == a && qobject_cast<const ZelShortcut *>(a));
}

QKeySequence keyOf(QObject *object)
{
    return object ? ConflictMember(object).key() : QKeySequence();
}

/// The windows that the live objects of an id work in, and the widgets that they belong to.
QSet<QWidget *> places(const QList<QPointer<QObject>> &objects, const QString &id)
{
    QSet<QWidget *> places;
    for (const QPointer<QObject> &object : objects) {
        const ConflictMember member(object);
        QWidget *scope = member.isAlive() && member.id() == id ? member.scope() : nullptr;
        if (scope)
            places += ZelShortcutScopes::places(scope);
    }
    return places;
}

} // namespace

ZelShortcutConflictHandler *ZelShortcutHandlerPrivate::handlerOf(const QKeySequence &key) const
{
    return handlersByKey.value(key);
}

bool ZelShortcutHandlerPrivate::isHeld(const QObject *object, const QKeySequence &key) const
{
    const ZelShortcutConflictHandler *handler = handlerOf(key);
    return handler && handler->holds(object);
}

void ZelShortcutHandlerPrivate::enterHandler(ZelShortcutConflictHandler *handler)
{
    conflictHandlers.append(handler);
    handlersByKey.insert(handler->key(), handler);
}

void ZelShortcutHandlerPrivate::deleteConflictHandlers()
{
    handlersByKey.clear();
    for (const QPointer<ZelShortcutConflictHandler> &handler :
         std::exchange(conflictHandlers, {})) {
        if (handler)
            handler->dismiss();
    }
}

void ZelShortcutHandlerPrivate::lookForConflict(QObject *object)
{
    const QKeySequence key = keyOf(object);
    if (key.isEmpty())
        return;
    if (conflictHandlers.size() >= handlerLimit) {
        rebuildConflictHandlers();
        return;
    }
    ZelShortcutConflictHandler *handler = handlerOf(key);
    if (handler) {
        handler->add(object);
        return;
    }
    QList<QObject *> group{object};
    for (const QPointer<QObject> &other : objectsByKey.value(key)) {
        if (other && other != object && keyOf(other) == key)
            group.append(other);
    }
    makeHandler(group);
}

/// A handler of all objects of the group, which have one key.
void ZelShortcutHandlerPrivate::makeHandler(const QList<QObject *> &group)
{
    if (group.size() < 2 || (group.size() == 2 && isOwnPair(group[0], group[1])))
        return;
    ZelShortcutConflictHandler *handler = ZelShortcutConflictHandler::make(group[0], group[1]);
    if (!handler)
        return;
    for (QObject *object : group.mid(2))
        handler->add(object);
    enterHandler(handler);
}

void ZelShortcutHandlerPrivate::rebuildConflictHandlers()
{
    deleteConflictHandlers();
    objectsByKey.clear();
    QHash<QKeySequence, qsizetype> positions;
    QList<QList<QObject *>> groups;
    QSet<QObject *> seen;
    for (const QPointer<QObject> &object : std::as_const(liveObjects)) {
        const QKeySequence key = keyOf(object);
        if (key.isEmpty() || seen.contains(object))
            continue;
        seen << object;
        objectsByKey[key].append(object);
        const auto position = positions.constFind(key);
        if (position != positions.constEnd()) {
            groups[*position].append(object);
        } else {
            positions.insert(key, groups.size());
            groups.append({object});
        }
    }
    for (const QList<QObject *> &group : std::as_const(groups))
        makeHandler(group);
}

bool ZelShortcutHandler::activateConflictHandlerShortcut(const QKeySequence &key)
{
    ZelShortcutConflictHandler *handler = d_->handlerOf(key);
    if (handler)
        handler->decide();
    return handler != nullptr;
}

bool ZelShortcutHandler::hasScopeConflictKey(QString idA, QString idB) const
{
    return places(d_->liveObjects, idA).intersects(places(d_->liveObjects, idB));
}

bool ZelShortcutHandler::hasScopeConflictMouse(QString idA, QString idB) const
{
    const auto *a = qobject_cast<ZelMouseAction *>(findShortcut(idA));
    const auto *b = qobject_cast<ZelMouseAction *>(findShortcut(idB));
    return a && b && a->hasScopeOverLap(*b);
}
