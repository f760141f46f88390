#include "ZelShortcutHandler.h"

#include "ViewCtrl.h"
#include "ZelAction.h"
#include "ZelHotKeyMaterials.h"
#include "ZelMouseAction.h"
#include "ZelMouseActionSettings.h"
#include "ZelShortcut.h"
#include "ZelShortcutConflictHandler.h"
#include "ZelShortcutHandler_p.h"

#include <QAction>
#include <QDebug>
#include <QLoggingCategory>
#include <QScopedValueRollback>

namespace {

constexpr int cleanLimit = 1000;

std::unique_ptr<ZelShortcutHandler> &registry()
{
    static std::unique_ptr<ZelShortcutHandler> registry;
    return registry;
}

/// Whether the live object has the id; a ZelAction that has lost its action has none.
bool hasId(const QObject *object, const QString &id)
{
    if (const auto *action = qobject_cast<const ZelAction *>(object))
        return action->qAction() && action->id() == id;
    if (const auto *shortcut = qobject_cast<const ZelShortcut *>(object))
        return shortcut->id() == id;
    const auto *mouse = qobject_cast<const ZelMouseAction *>(object);
    return mouse && mouse->id() == id;
}

/// Thousands of objects may each tell this: nothing is formatted.
void tellOfLimit()
{
    static const QString message =
        QStringLiteral("Clean limit (or other) issue in ZelShortcuthandler");
    if (QLoggingCategory::defaultCategory()->isWarningEnabled())
        qt_message_output(QtWarningMsg, {nullptr, 0, nullptr, "default"}, message);
}

} // namespace

ZelShortcutHandler::ZelShortcutHandler()
    : d_(std::make_unique<ZelShortcutHandlerPrivate>())
{}

ZelShortcutHandler::~ZelShortcutHandler() = default;

void ZelShortcutHandler::prepareInstance()
{
    if (!registry())
        make();
}

void ZelShortcutHandler::make()
{
    init(ZelShortcutHandlerPrivate::global());
    registry().reset(new ZelShortcutHandler);
    registry()->initLaterCreatedShortcuts();
    if (ZelMouseActionSettings *settings = ZelMouseActionSettings::existing())
        settings->registerAgain();
}

ZelShortcutHandler *ZelShortcutHandler::instance()
{
    if (!registry()) {
        qWarning() << "ZelShortcutHandler::prepareInstance was not called.";
        make();
    }
    return registry().get();
}

void ZelShortcutHandler::destroy()
{
    registry().reset();
}

bool ZelShortcutHandler::isConflictHandler(const QShortcut *shortcut)
{
    return qobject_cast<const ZelShortcutConflictHandler *>(shortcut) != nullptr;
}

void ZelShortcutHandler::registerKeyShortcut(QString id, QString text, QKeySequence key)
{
    d_->decidedKey(id, text, ZelKeyText(key));
}

QString ZelShortcutHandler::registerShortcut(QString id, QString text, QString key)
{
    return d_->decidedKey(id, text, key).text();
}

ZelKeyText ZelShortcutHandlerPrivate::decidedKey(const QString &id, const QString &text,
                                                 ZelKeyText asked)
{
    const qsizetype dot = id.lastIndexOf(u'.');
    if (dot < 0)
        return asked;
    static const QKeySequence escape(Qt::Key_Escape);
    if (asked.isKey(escape))
        asked = {};
    if (!global().categoryIndex.contains(QString::fromRawData(id.constData(), dot)))
        return asked;
    const auto override = global().nameOverrides.constFind(id);
    const QString &name = override == global().nameOverrides.constEnd() ? text : *override;
    // Thousands are registered at the start: one search serves both to find and to insert.
    const auto entry = entries.lowerBound(id);
    if (entry == entries.end() || id < entry.key()) {
        entries.insert(entry, id, {asked, asked, name});
        return asked;
    }
    if (!systemInitialized && name.size() > entry->text.size())
        entry->text = name;
    return entry->currentKey;
}

void ZelShortcutHandler::registerActionOrSetShortcut(ZelAction &action)
{
    QAction *qAction = action.qAction();
    if (!qAction)
        return;
    const QString id = action.id();
    const ZelKeyText asked(qAction->shortcut());
    const ZelKeyText key = d_->decidedKey(id, qAction->text(), asked);
    if (ZelHotKeyMaterials::isMaterialId(id) && qAction->text().isEmpty())
        qAction->setText(d_->entries.value(id).text);
    if (key != asked) {
        const QKeySequence sequence = key.key();
        if (sequence != qAction->shortcut())
            qAction->setShortcut(sequence);
    }
    d_->addLiveObject(&action);
}

void ZelShortcutHandler::registerOrChangeShortcut(ZelShortcut &shortcut)
{
    const QString id = shortcut.id();
    const ZelKeyText asked(shortcut.key());
    const ZelKeyText key = d_->decidedKey(id, shortcut.text(), asked);
    if (ZelHotKeyMaterials::isMaterialId(id) && shortcut.text().isEmpty())
        shortcut.setText(d_->entries.value(id).text);
    if (key != asked) {
        const QKeySequence sequence = key.key();
        // A handler of conflicts may have taken the key away for the time being.
        if (sequence != shortcut.key() && !d_->isHeld(&shortcut, sequence))
            shortcut.setKey(sequence);
    }
    d_->addLiveObject(&shortcut);
}

void ZelShortcutHandler::registerOrChangeMouseAction(ZelMouseAction &action)
{
    const QString asked = action.internalShortcutTxt();
    const QString decided = registerShortcut(action.id(), action.text(), asked);
    if (decided != asked)
        action.setShortcutFromText(decided);
    const auto entry = d_->entries.find(action.id());
    if (entry != d_->entries.end())
        entry->category = action.getCategory();
    d_->addLiveObject(&action);
}

QObject *ZelShortcutHandler::findShortcut(QString id) const
{
    for (const QPointer<QObject> &object : std::as_const(d_->liveObjects)) {
        if (hasId(object, id))
            return object;
    }
    return nullptr;
}

QString ZelShortcutHandler::getShortcutInfo(const QString &id)
{
    return d_->entries[id].currentKey.text();
}

bool ZelShortcutHandler::hasDefaultShortcut(const QString &id) const
{
    const auto entry = d_->entries.constFind(id);
    return entry != d_->entries.constEnd() && entry->currentKey == entry->defaultKey;
}

bool ZelShortcutHandler::isLivingZelShortcut(const QAction &action) const
{
    const QString id = action.property("iD").toString();
    if (id.isEmpty())
        return false;
    for (const QPointer<QObject> &object : std::as_const(d_->liveObjects)) {
        const auto *shortcut = qobject_cast<ZelShortcut *>(object.data());
        if (shortcut && shortcut->id() == id)
            return true;
    }
    return false;
}

bool ZelShortcutHandler::systemInitialized() const
{
    return d_->systemInitialized;
}

void ZelShortcutHandler::setSystemInitialized(QWidget *mainWidget)
{
    ZelShortcutHandlerPrivate::mainWidget() = mainWidget;
    d_->systemInitialized = true;
    d_->rebuildConflictHandlers();
}

bool ZelShortcutHandler::changeShortcut(QString id, QString key, bool apply)
{
    const auto entry = d_->entries.find(id);
    if (entry == d_->entries.end())
        return false;
    entry->currentKey = std::move(key);
    if (apply)
        applyCurrentSettingsToShortcuts();
    return true;
}

void ZelShortcutHandler::applyCurrentSettingsToShortcuts()
{
    // Handlers give their members the old key back when they go.
    d_->deleteOutdatedHandlers();
    const QList<QPointer<QObject>> objects = std::exchange(d_->liveObjects, {});
    {
        const QScopedValueRollback<bool> batch(d_->batchUpdate, true);
        for (const QPointer<QObject> &object : objects) {
            if (auto *action = qobject_cast<ZelAction *>(object.data()))
                registerActionOrSetShortcut(*action);
            else if (auto *shortcut = qobject_cast<ZelShortcut *>(object.data()))
                registerOrChangeShortcut(*shortcut);
            else if (auto *mouse = qobject_cast<ZelMouseAction *>(object.data()))
                registerOrChangeMouseAction(*mouse);
        }
    }
    ViewCtrl::Settings::instance()->applyGestures();
    d_->rebuildConflictHandlers();
}

void ZelShortcutHandler::resetAllOnlyCallThisFromAutoTests()
{
    d_->deleteConflictHandlers();
    d_ = std::make_unique<ZelShortcutHandlerPrivate>();
}

ZelShortcutHandlerPrivate::~ZelShortcutHandlerPrivate()
{
    deleteConflictHandlers();
}

GlobalShortcutSettings &ZelShortcutHandlerPrivate::global()
{
    static GlobalShortcutSettings settings;
    return settings;
}

QPointer<QWidget> &ZelShortcutHandlerPrivate::mainWidget()
{
    static QPointer<QWidget> widget;
    return widget;
}

void ZelShortcutHandlerPrivate::removeDead()
{
    hasDead = false;
    liveObjects.removeIf([](const QPointer<QObject> &object) { return object.isNull(); });
}

void ZelShortcutHandlerPrivate::addLiveObject(QObject *object)
{
    if (liveObjects.size() > cleanLimit && hasDead)
        removeDead();
    if (liveObjects.size() > cleanLimit)
        tellOfLimit();
    liveObjects.append(object);
    if (batchUpdate || !systemInitialized)
        return;
    lookForConflict(object);
}
