#include "ControlWalk.h"

#include "OwnControl.h"
#include "PopupCloser.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QMenu>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <memory>
#include <vector>

namespace ControlWalk {
namespace {

using Action = QAccessibleActionInterface;

/// Spies on the clicks of a button, on all signals of others but those of QObject and QWidget.
class AnySignal
{
public:
    explicit AnySignal(QObject *object)
    {
        const QMetaObject *type = object->metaObject();
        for (int i = QWidget::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
            const bool isMeant = !qobject_cast<QAbstractButton *>(object) ||
                                 type->method(i).name() == QByteArrayLiteral("clicked");
            if (isMeant && type->method(i).methodType() == QMetaMethod::Signal)
                spies_.push_back(std::make_unique<QSignalSpy>(object, type->method(i)));
        }
    }
    bool came() const
    {
        return std::any_of(spies_.begin(), spies_.end(),
                           [](const auto &spy) { return !spy->isEmpty(); });
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> spies_;
};

QMenu *menuOf(const QWidget *widget)
{
    if (const auto *push = qobject_cast<const QPushButton *>(widget))
        return push->menu();
    const auto *tool = qobject_cast<const QToolButton *>(widget);
    return tool ? tool->menu() : nullptr;
}

bool hasRightRole(QAccessibleInterface *access, const QWidget *widget)
{
    const QAccessible::Role role = access->role();
    if (menuOf(widget))
        return role == QAccessible::ButtonMenu && access->state().hasPopup;
    if (qobject_cast<const QAbstractButton *>(widget)) {
        static const QList<QAccessible::Role> roles{QAccessible::Button, QAccessible::CheckBox,
                                                    QAccessible::RadioButton};
        return roles.contains(role) && (role == QAccessible::Button || access->state().checkable);
    }
    // Qt tells no role of these.
    for (const char *type : {"QGraphicsView", "QScrollArea"}) {
        if (qstrcmp(widget->metaObject()->className(), type) == 0)
            return true;
    }
    if (access->state().editable && role == QAccessible::StaticText)
        return false;
    static const QList<QAccessible::Role> vague{QAccessible::NoRole, QAccessible::Client,
                                                QAccessible::Pane, QAccessible::Window};
    return !vague.contains(role);
}

/// What an action is seen by: everything that the object tells of itself.
QString stateOf(QAccessibleInterface *access)
{
    const QAccessible::State state = access->state();
    QStringList parts{access->text(QAccessible::Value),
                      QString::number(state.checked + 2 * state.expanded + 4 * state.focused)};
    if (access->valueInterface())
        parts.append(access->valueInterface()->currentValue().toString());
    return parts.join(u'|');
}

bool isAtItsLimit(QAccessibleInterface *access, bool up)
{
    QAccessibleValueInterface *value = access->valueInterface();
    return value && value->currentValue() == (up ? value->maximumValue() : value->minimumValue());
}

/// Runs an action; false if nothing tells that it did anything.
bool works(const QPointer<QWidget> &widget, const QString &action)
{
    // The action before may have been another window's, and may have left work that closes menus.
    QCoreApplication::processEvents();
    if (!widget || !widget->isVisible() || !widget->isEnabled())
        return true;
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
    widget->activateWindow();
    const auto isActive = [widget] {
        return QApplication::activeWindow() == widget->window();
    };
    if (!QTest::qWaitFor(isActive))
        return false;
    if (action == Action::setFocusAction()) {
        access->actionInterface()->doAction(action);
        const QWidget *focus = QApplication::focusWidget();
        // Qt's group box offers this action without doing it.
        return qobject_cast<QGroupBox *>(widget) ||
               (focus &&
                (focus == widget || focus == widget->focusProxy() || widget->isAncestorOf(focus)));
    }
    const bool isStep = action == Action::increaseAction() || action == Action::decreaseAction();
    if (isStep && isAtItsLimit(access, action == Action::increaseAction()))
        return true;
    const QString before = stateOf(access);
    const bool isChosen = access->role() == QAccessible::RadioButton && access->state().checked;
    const AnySignal signal(widget);
    const PopupCloser closer;
    access->actionInterface()->doAction(action);
    // Qt's push buttons are clicked a moment later.
    return QTest::qWaitFor(
        [&] {
            if (!widget || action == Action::showMenuAction())
                return !widget || closer.count() > 0;
            if (action == Action::toggleAction())
                return stateOf(access) != before || isChosen;
            return signal.came() || closer.count() > 0 ||
                   (!qobject_cast<QAbstractButton *>(widget) && stateOf(access) != before);
        },
        1000);
}

QString describe(QAccessibleInterface *access, const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' +
           access->text(QAccessible::Name) + u' ' + QString::number(access->role(), 16);
}

void collect(QAccessibleInterface *access, QList<QPointer<QWidget>> &found)
{
    auto *widget = qobject_cast<QWidget *>(access->object());
    if (widget && isOwnControl(widget) && !widget->focusProxy())
        found.append(widget);
    for (int i = 0; i < access->childCount(); ++i) {
        if (QAccessibleInterface *child = access->child(i); child && child->isValid())
            collect(child, found);
    }
}

} // namespace

QList<QPointer<QWidget>> controlsIn(QAccessibleInterface *root)
{
    QList<QPointer<QWidget>> found;
    collect(root, found);
    return found;
}

QStringList faultsOf(const QPointer<QWidget> &widget)
{
    QAccessibleInterface *access = widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
    if (!access)
        return {};
    QStringList faults;
    const QString description = describe(access, widget);
    if (access->text(QAccessible::Name).isEmpty())
        faults.append(QStringLiteral("no name: ") + description);
    if (!hasRightRole(access, widget))
        faults.append(QStringLiteral("role: ") + description);
    const QStringList actions =
        access->actionInterface() ? access->actionInterface()->actionNames() : QStringList();
    for (const QString &action : actions) {
        if (!works(widget, action))
            faults.append(action + QStringLiteral(" does nothing: ") + description);
    }
    return faults;
}

} // namespace ControlWalk
