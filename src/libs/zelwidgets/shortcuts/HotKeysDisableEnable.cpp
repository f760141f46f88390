#include "HotKeysDisableEnable.h"

#include "ZelActionState.h"
#include "ZelShortcut.h"
#include "ZelShortcutHandler_p.h"

#include <QAction>
#include <QDebug>
#include <QPointer>
#include <QSignalBlocker>
#include <QToolBar>

#include <algorithm>

namespace {

struct Exceptions
{
    QList<QString> ids;
    QList<QKeySequence> keys;

    bool hold(const QShortcut *shortcut) const
    {
        const auto *own = qobject_cast<const ZelShortcut *>(shortcut);
        // A shortcut in conflict has lent its key to the handler.
        const auto isKept = [shortcut](const QKeySequence &key) {
            return shortcut->key() == key || ZelShortcutHandlerPrivate::isHeldNow(shortcut, key);
        };
        return std::any_of(keys.begin(), keys.end(), isKept) ||
               ZelShortcutHandler::isConflictHandler(shortcut) || (own && ids.contains(own->id()));
    }
    bool hold(const QAction *action) const
    {
        return keys.contains(action->shortcut()) || ids.contains(action->property("iD").toString());
    }
};

/// Actions of tool bars are switched by the tool bar.
bool belongsToToolBar(const QAction *action)
{
    for (const QObject *ancestor = action->parent(); ancestor; ancestor = ancestor->parent()) {
        if (ancestor->isWidgetType())
            return qobject_cast<const QToolBar *>(ancestor) != nullptr;
    }
    return false;
}

void switchAction(QAction *action, bool on)
{
    if (const auto state = action->data().value<QPointer<ZelActionState>>())
        state->setEnabled(on);
    else
        action->setEnabled(on);
}

} // namespace

class HotKeysDisableEnablePrivate
{
public:
    QList<QPointer<QAction>> disabledActions;
    QList<QPointer<QShortcut>> disabledShortcuts;

    void disable(QShortcut *shortcut)
    {
        const QSignalBlocker blocker(shortcut);
        shortcut->setEnabled(false);
        disabledShortcuts.append(shortcut);
    }
    void disable(QAction *action)
    {
        if (belongsToToolBar(action)) {
            if (!action->shortcut().isEmpty() || action->property("iD").isValid())
                qWarning() << "Unexpected non-empty hotkey when disabling hotkeys";
            return;
        }
        switchAction(action, false);
        disabledActions.append(action);
    }
};

HotKeysDisableEnable::HotKeysDisableEnable()
    : d_(std::make_unique<HotKeysDisableEnablePrivate>())
{}

HotKeysDisableEnable::~HotKeysDisableEnable()
{
    reEnableHotKeys();
}

void HotKeysDisableEnable::disableAllHotKeys()
{
    disableHotKeys({}, {});
}

void HotKeysDisableEnable::disableHotKeys(QList<QString> exceptIds, QList<QKeySequence> exceptKeys)
{
    const QPointer<QWidget> root = ZelShortcutHandlerPrivate::mainWidget();
    if (!root)
        return;
    const Exceptions exceptions{std::move(exceptIds), std::move(exceptKeys)};
    const auto shortcuts = root->findChildren<QShortcut *>();
    for (QShortcut *shortcut : shortcuts) {
        if (shortcut->isEnabled() && !exceptions.hold(shortcut))
            d_->disable(shortcut);
    }
    QList<QPointer<QAction>> actions;
    for (QAction *action : root->findChildren<QAction *>())
        actions.append(action);
    for (const QPointer<QAction> &action : std::as_const(actions)) {
        if (action && action->isEnabled() && !exceptions.hold(action))
            d_->disable(action);
    }
}

void HotKeysDisableEnable::reEnableHotKeys()
{
    for (const QPointer<QShortcut> &shortcut : std::as_const(d_->disabledShortcuts)) {
        if (shortcut)
            shortcut->setEnabled(true);
    }
    for (const QPointer<QAction> &action : std::as_const(d_->disabledActions)) {
        if (action)
            switchAction(action, true);
    }
}
