#include "ZelAction.h"
#include "ZelConflictChoice.h"
#include "ZelMouseAction.h"
#include "ZelShortcut.h"
#include "ZelShortcutConflictHandler.h"
#include "ZelShortcutHandler_p.h"
#include "ZelShortcutScopes.h"

#include <ZelWidgets/GlobalEventFilter>

#include <QAction>
#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>

namespace {

constexpr qsizetype handlerLimit = 3001;

QKeySequence keyOf(QObject *object)
{
    if (const auto *action = qobject_cast<ZelAction *>(object))
        return action->qAction() ? action->qAction()->shortcut() : QKeySequence();
    const auto *shortcut = qobject_cast<ZelShortcut *>(object);
    return shortcut ? shortcut->key() : QKeySequence();
}

/// Whether any two of the objects could be meant by one key.
bool areSeveralThings(const QList<QPointer<QObject>> &objects)
{
    for (qsizetype at = 0; at < objects.size(); ++at) {
        const ConflictMember member(objects[at]);
        for (qsizetype other = at + 1; other < objects.size(); ++other) {
            if (!member.isSameThing(ConflictMember(objects[other])))
                return true;
        }
    }
    return false;
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
    return handlersByKey.value(ZelKeyCodes(key));
}

bool ZelShortcutHandlerPrivate::isHeld(const QObject *object, const QKeySequence &key) const
{
    const ZelShortcutConflictHandler *handler = handlerOf(key);
    return handler && handler->holds(object);
}

bool ZelShortcutHandlerPrivate::isHeldNow(const QObject *object, const QKeySequence &key)
{
    return ZelShortcutHandler::instance()->d_->isHeld(object, key);
}

void ZelShortcutHandlerPrivate::deleteConflictHandlers()
{
    deleteHandlersBut({});
}

void ZelShortcutHandlerPrivate::deleteOutdatedHandlers()
{
    QSet<const ZelShortcutConflictHandler *> kept;
    for (const QPointer<ZelShortcutConflictHandler> &handler : std::as_const(conflictHandlers)) {
        if (!handler)
            continue;
        const ZelKeyText key(handler->key());
        const QList<QObject *> objects = handler->objects();
        const bool isInForce = std::all_of(objects.begin(), objects.end(), [&](QObject *object) {
            const auto entry = entries.constFind(ConflictMember(object).id());
            return entry == entries.constEnd() || entry->currentKey == key;
        });
        if (isInForce)
            kept << handler;
    }
    deleteHandlersBut(kept);
}

void ZelShortcutHandlerPrivate::deleteHandlersBut(
    const QSet<const ZelShortcutConflictHandler *> &kept)
{
    // Objects that are made meanwhile must not get hold of those that are still to be given back.
    const QScopedValueRollback<bool> batch(batchUpdate, true);
    const auto stays = [&kept](const QPointer<ZelShortcutConflictHandler> &handler) {
        return !handler || (kept.contains(handler) && !handler->isEmpty());
    };
    // Each stays in the list until all is given back, for those who apply keys on hearing of that.
    QList<QPointer<ZelShortcutConflictHandler>> handlers;
    if (!std::all_of(conflictHandlers.cbegin(), conflictHandlers.cend(), stays))
        handlers = conflictHandlers;
    for (const QPointer<ZelShortcutConflictHandler> &handler : std::as_const(handlers)) {
        if (stays(handler))
            continue;
        if (handlerOf(handler->key()) == handler)
            handlersByKey.remove(ZelKeyCodes(handler->key()));
        handler->dismiss();
    }
    conflictHandlers.removeIf([](const QPointer<ZelShortcutConflictHandler> &handler) {
        return !handler || handler->isEmpty();
    });
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
    const Comers others = rememberKey(object, key);
    if (ZelShortcutConflictHandler *handler = handlerOf(key)) {
        handler->add(object);
        return;
    }
    if (others.size() < 2)
        return;
    Group group;
    for (const QPointer<QObject> &other : others) {
        if (keyOf(other) == key && !group.contains(other))
            group.append(other);
    }
    makeHandler(group);
}

/// All that came with the key, the object included.
ZelShortcutHandlerPrivate::Comers &ZelShortcutHandlerPrivate::rememberKey(QObject *object,
                                                                          const QKeySequence &key)
{
    Comers &group = objectsByKey[ZelKeyCodes(key)];
    // Now and then, so that views that come and go leave nothing behind.
    const bool isPowerOfTwo = (group.size() & (group.size() - 1)) == 0;
    if (isPowerOfTwo)
        group.removeIf([](const QPointer<QObject> &other) { return other.isNull(); });
    group.append(object);
    return group;
}

/// A handler of all objects of the group, which have one key.
void ZelShortcutHandlerPrivate::makeHandler(Group group)
{
    group.removeIf([](const QPointer<QObject> &object) { return keyOf(object).isEmpty(); });
    if (group.size() < 2 || !areSeveralThings(group))
        return;
    // Whoever hears of the changed actions may end objects, and enter new ones.
    QPointer<ZelShortcutConflictHandler> handler = handlerOf(keyOf(group[0]));
    if (!handler) {
        handler = ZelShortcutConflictHandler::make(group[0], group[1]);
        if (!handler)
            return;
        // Handlers may have to hand on the key that was pressed.
        if (conflictHandlers.isEmpty())
            GlobalEventFilter::instance();
        conflictHandlers.append(handler);
        handlersByKey.insert(ZelKeyCodes(handler->key()), handler);
    }
    for (const QPointer<QObject> &object : group) {
        if (handler && keyOf(object) == handler->key())
            handler->add(object);
    }
}

QList<ZelShortcutHandlerPrivate::Group> ZelShortcutHandlerPrivate::groupByKeys()
{
    QHash<const QObject *, QKeySequence> lent;
    for (const QPointer<ZelShortcutConflictHandler> &handler : std::as_const(conflictHandlers)) {
        for (const QObject *shortcut : handler ? handler->shortcuts() : QList<QObject *>())
            lent.insert(shortcut, handler->key());
    }
    // Where the list ended when the group was put there.
    QHash<ZelKeyCodes, qsizetype> positions;
    QList<Group> groups;
    QSet<QObject *> seen;
    positions.reserve(liveObjects.size());
    seen.reserve(liveObjects.size());
    for (const QPointer<QObject> &object : std::as_const(liveObjects)) {
        QKeySequence key = keyOf(object);
        if (key.isEmpty())
            key = lent.value(object);
        if (key.isEmpty() || seen.contains(object))
            continue;
        seen << object;
        qsizetype &end = positions[ZelKeyCodes(key)];
        if (end == 0) {
            groups.append(Group());
            end = groups.size();
        }
        groups[end - 1].append(object);
    }
    objectsByKey.clear();
    objectsByKey.reserve(groups.size());
    for (auto position = positions.constBegin(); position != positions.constEnd(); ++position)
        objectsByKey.insert(position.key(),
                            Comers(groups[*position - 1].cbegin(), groups[*position - 1].cend()));
    return groups;
}

/// Handlers that would come out the same stay: taking an action out of Qt's map and putting it back
/// takes time that grows with the number of all shortcuts.
void ZelShortcutHandlerPrivate::rebuildConflictHandlers()
{
    QList<Group> groups = groupByKeys();
    QHash<const QObject *, ZelShortcutConflictHandler *> handlerOfFirst;
    for (const QPointer<ZelShortcutConflictHandler> &handler : std::as_const(conflictHandlers)) {
        if (handler && !handler->isEmpty())
            handlerOfFirst.insert(handler->firstObject(), handler);
    }
    QSet<const ZelShortcutConflictHandler *> kept;
    groups.removeIf([&](const Group &group) {
        const ZelShortcutConflictHandler *handler = handlerOfFirst.value(group.constFirst());
        const bool isKept = handler && group.size() > 1 && handler->isFor(group);
        if (isKept)
            kept << handler;
        return isKept;
    });
    deleteHandlersBut(kept);
    for (const Group &group : std::as_const(groups))
        makeHandler(group);
}

bool ZelShortcutHandler::activateConflictHandlerShortcut(const QKeySequence &key)
{
    ZelShortcutConflictHandler *handler = d_->handlerOf(key);
    if (handler)
        handler->decide();
    return handler != nullptr;
}

QList<ZelConflictStanding> ZelShortcutHandler::conflictStandings(const QKeySequence &key) const
{
    const ZelShortcutConflictHandler *handler = d_->handlerOf(key);
    return handler ? handler->standings() : QList<ZelConflictStanding>();
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
