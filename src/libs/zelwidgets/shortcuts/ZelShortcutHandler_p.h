#pragma once

#include "ZelKeyCodes.h"
#include "ZelKeyText.h"
#include "ZelShortcutHandler.h"

#include <QHash>
#include <QMap>
#include <QPointer>
#include <QSet>
#include <QVarLengthArray>
#include <QWidget>

class ZelShortcutConflictHandler;

/// What the registry knows of an id.
struct ShortcutEntry
{
    static constexpr int keyboard = 3;

    ZelKeyText currentKey;
    ZelKeyText defaultKey;
    QString text;
    /// A ZelMouseAction::Category, or keyboard.
    int category = keyboard;
    unsigned char reserved = 0;
};

using ShortcutEntries = QMap<QString, ShortcutEntry>;

/// The keys of the settings store.
namespace ZelShortcutKeys {

QString group();
QString viewMode();
/// The store's key of an id.
QString encoded(QString id);
/// The id of a material's key: the first mark of a dot is read back.
QString materialId(QString key);

} // namespace ZelShortcutKeys

class ZelShortcutHandlerPrivate
{
public:
    class Import;
    /// Most are the only one with their key.
    using Comers = QVarLengthArray<QPointer<QObject>, 1>;

    ~ZelShortcutHandlerPrivate();

    ShortcutEntries entries;
    QList<QPointer<QObject>> liveObjects;
    QList<QPointer<ZelShortcutConflictHandler>> conflictHandlers;
    /// The handlers by their keys.
    QHash<ZelKeyCodes, QPointer<ZelShortcutConflictHandler>> handlersByKey;
    /// The live objects by the keys that they came with.
    QHash<ZelKeyCodes, Comers> objectsByKey;
    bool systemInitialized = false;
    bool batchUpdate = false;
    /// A live object has died since the dead ones were last removed. The objects tell themselves,
    /// also when there is no registry any more.
    static inline bool hasDead = false;

    static GlobalShortcutSettings &global();
    static QPointer<QWidget> &mainWidget();

    /// The key in force for an id that is announced with this one.
    ZelKeyText decidedKey(const QString &id, const QString &text, ZelKeyText asked);
    void addLiveObject(QObject *object);
    void removeDead();

    void restoreStoredKeys();

    // Conflicts
    void deleteConflictHandlers();
    /// Those with a member that is to have another key.
    void deleteOutdatedHandlers();
    void lookForConflict(QObject *object);
    void rebuildConflictHandlers();
    ZelShortcutConflictHandler *handlerOf(const QKeySequence &key) const;
    /// Whether the handler of the key has the object.
    bool isHeld(const QObject *object, const QKeySequence &key) const;
    static bool isHeldNow(const QObject *object, const QKeySequence &key);

private:
    using Group = QList<QPointer<QObject>>;
    Comers &rememberKey(QObject *object, const QKeySequence &key);
    void makeHandler(Group group);
    void deleteHandlersBut(const QSet<const ZelShortcutConflictHandler *> &kept);
    /// The live objects by their keys, those that are lent to handlers included.
    QList<Group> groupByKeys();
};
