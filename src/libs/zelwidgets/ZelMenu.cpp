#include "ZelMenu.h"

#include <QAction>
#include <QCloseEvent>
#include <QDebug>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

namespace {

constexpr const char *nonHideProperty = "specialNonHideActionPropId";

// The menu whose hide is deferred. There is one mark for all menus of the process: when a chain of
// menus closes in one go, the second one hides at once and takes the first along.
const ZelMenu *deferredMenu = nullptr;

// Space works in every style here: it is the key that switches what stays in view.
bool isActivationKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select ||
           key == Qt::Key_Space;
}

/// The only entry of the menu that the typed character stands for; null without one.
QAction *mnemonicAction(const QMenu *menu, const QKeyEvent *event)
{
    const bool isTyped = !(event->modifiers() & ~(Qt::AltModifier | Qt::ShiftModifier));
    if (!isTyped || event->text().size() != 1)
        return nullptr;
    const int key = event->text().at(0).toUpper().unicode();
    QAction *found = nullptr;
    for (QAction *action : menu->actions()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
        const bool isMeant = action->isVisible() && action->isEnabled() && !mnemonic.isEmpty() &&
                             mnemonic[0].key() == key;
        if (isMeant && found)
            return nullptr;
        if (isMeant)
            found = action;
    }
    return found;
}

} // namespace

class ZelMenuPrivate
{
public:
    bool preventCloseNow = false;
    bool hasNonHideActions = false;
    // A queued hide is on its way.
    bool hideQueued = false;
    // The hide under way began as a close.
    bool closing = false;
    QPointer<QAction> actionUnderMouse;
    QPointer<QAction> pressedAction;
};

ZelMenu::ZelMenu(QWidget *parent)
    : QMenu(parent)
    , d_(std::make_unique<ZelMenuPrivate>())
{}

ZelMenu::ZelMenu(const QString &title, QWidget *parent)
    : ZelMenu(parent)
{
    setTitle(title);
}

ZelMenu::~ZelMenu()
{
    if (deferredMenu == this)
        deferredMenu = nullptr;
}

QAction *ZelMenu::addNotHideAction(const QString &text)
{
    return setNotHideAction(addAction(text));
}

QAction *ZelMenu::setNotHideAction(QAction *action)
{
    if (!action) {
        qWarning() << "No action to keep the menu open for:" << objectName();
        return nullptr;
    }
    d_->hasNonHideActions = true;
    connect(action, &QAction::triggered, this, &ZelMenu::slotSetPreventCloseNow,
            Qt::UniqueConnection);
    action->setProperty(nonHideProperty, true);
    return action;
}

bool ZelMenu::isActionNonHideMenuItem(QAction *action) const
{
    return action && action->property(nonHideProperty).toBool();
}

void ZelMenu::slotSetPreventCloseNow()
{
    d_->preventCloseNow = true;
    // Without a close the wish expires, or it would stop one that the user asks for later.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!d_->hideQueued)
                d_->preventCloseNow = false;
        },
        Qt::QueuedConnection);
}

void ZelMenu::setVisible(bool visible)
{
    if (visible) {
        // A hide that is still on its way is meant for the showing before.
        if (deferredMenu == this)
            deferredMenu = nullptr;
        d_->hideQueued = false;
        d_->closing = false;
        QMenu::setVisible(true);
    } else if (!isVisible()) {
        QMenu::setVisible(false);
    } else if (deferredMenu == this && d_->closing && d_->hideQueued) {
        // Qt closes a menu and then a menu bar hides it, all before the action is triggered: the
        // hide that is on its way is enough.
        return;
    } else if (!deferredMenu) {
        deferHide();
    } else {
        deferredMenu = nullptr;
        hideNow();
    }
}

void ZelMenu::deferHide()
{
    // Qt closes a menu before the action that was chosen is triggered.
    deferredMenu = this;
    if (d_->hideQueued)
        return;
    d_->hideQueued = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!d_->hideQueued)
                return;
            d_->hideQueued = false;
            hide();
        },
        Qt::QueuedConnection);
}

void ZelMenu::hideNow()
{
    d_->hideQueued = false;
    const bool closing = std::exchange(d_->closing, false);
    if (std::exchange(d_->preventCloseNow, false))
        return;
    QMenu::setVisible(false);
    if (closing && testAttribute(Qt::WA_DeleteOnClose))
        deleteLater();
}

void ZelMenu::closeEvent(QCloseEvent *event)
{
    // An accepted close would destroy the native window, and the menu could not be shown again.
    event->ignore();
    if (!isVisible())
        return;
    d_->closing = true;
    setVisible(false);
}

bool ZelMenu::staysOpenFor(QAction *action) const
{
    return d_->hasNonHideActions && isActionNonHideMenuItem(action) && action->isEnabled() &&
           !action->menu();
}

void ZelMenu::keyPressEvent(QKeyEvent *event)
{
    QAction *action = isActivationKey(event->key()) ? activeAction() : mnemonicAction(this, event);
    if (staysOpenFor(action)) {
        setActiveAction(action);
        action->trigger();
        return;
    }
    QMenu::keyPressEvent(event);
}

void ZelMenu::mousePressEvent(QMouseEvent *event)
{
    d_->pressedAction = actionAt(event->position().toPoint());
    QMenu::mousePressEvent(event);
}

void ZelMenu::mouseReleaseEvent(QMouseEvent *event)
{
    // The base class would close the whole chain of menus first and trigger then; here nothing has
    // to close, so that parents stay open, too, and the entry stays the current one.
    const QPointer<QAction> pressed = std::exchange(d_->pressedAction, nullptr);
    QAction *action = actionAt(event->position().toPoint());
    if (action && action == pressed && action == activeAction() && staysOpenFor(action)) {
        action->trigger();
        return;
    }
    QMenu::mouseReleaseEvent(event);
}

void ZelMenu::mouseMoveEvent(QMouseEvent *event)
{
    QMenu::mouseMoveEvent(event);
    QAction *action = actionAt(event->position().toPoint());
    // A button may be pressed elsewhere and released here.
    if (event->buttons() != Qt::NoButton)
        d_->pressedAction = action == activeAction() ? action : nullptr;
    if (!action) {
        forgetTooltip();
    } else if (action != d_->actionUnderMouse) {
        d_->actionUnderMouse = action;
        Q_EMIT showTooltip(action);
    }
}

void ZelMenu::leaveEvent(QEvent *event)
{
    QMenu::leaveEvent(event);
    forgetTooltip();
}

void ZelMenu::hideEvent(QHideEvent *event)
{
    QMenu::hideEvent(event);
    forgetTooltip();
}

void ZelMenu::forgetTooltip()
{
    d_->actionUnderMouse = nullptr;
    Q_EMIT hideTooltip();
}
