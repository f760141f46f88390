#include "ZelAccessibleButton.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QToolButton>

#include <optional>

namespace {

QString withoutMnemonic(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == u'&')
            text.remove(i, 1);
    }
    return text;
}

QString plainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QMenu *menuOf(const QAbstractButton *button)
{
    if (const auto *push = qobject_cast<const QPushButton *>(button))
        return push->menu();
    const auto *tool = qobject_cast<const QToolButton *>(button);
    return tool ? tool->menu() : nullptr;
}

/// The role of the library's own classes; none for a class that Qt has to answer for.
std::optional<QAccessible::Role> roleOf(const QString &className, const QAbstractButton *button)
{
    if (className == QLatin1String("ZelSwitchControl") ||
        className == QLatin1String("ZelCheckBox") ||
        className == QLatin1String("ZelTextlessCheckBox"))
        return QAccessible::CheckBox;
    if (className == QLatin1String("ZelTextlessRadioButton"))
        return QAccessible::RadioButton;
    if (className == QLatin1String("ZelToolButton") ||
        className == QLatin1String("ZelTinyIconButton") ||
        className == QLatin1String("ZelMenuButton"))
        return menuOf(button) ? QAccessible::ButtonMenu : QAccessible::Button;
    return std::nullopt;
}

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *button = qobject_cast<QAbstractButton *>(object);
    if (!button)
        return nullptr;
    const auto role = roleOf(className, button);
    return role ? new ZelAccessibleButton(button, *role) : nullptr;
}

} // namespace

ZelAccessibleButton::ZelAccessibleButton(QAbstractButton *button, QAccessible::Role role)
    : QAccessibleWidget(button, role)
{}

void ZelAccessibleButton::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

QString ZelAccessibleButton::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Accelerator && !button()->shortcut().isEmpty())
        return button()->shortcut().toString(QKeySequence::NativeText);
    if (kind != QAccessible::Name || !button()->accessibleName().isEmpty())
        return QAccessibleWidget::text(kind);
    if (!button()->text().isEmpty())
        return withoutMnemonic(button()->text());
    const QString name = QAccessibleWidget::text(kind);
    return name.isEmpty() ? plainText(button()->toolTip()) : name;
}

QAccessible::State ZelAccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button()->isDown();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.hasPopup = hasMenu();
    const auto *box = qobject_cast<QCheckBox *>(button());
    if (box && box->checkState() == Qt::PartiallyChecked) {
        state.checked = false;
        state.checkStateMixed = true;
    }
    return state;
}

bool ZelAccessibleButton::hasMenu() const
{
    return menuOf(button()) != nullptr;
}

void ZelAccessibleButton::showMenu()
{
    if (auto *push = qobject_cast<QPushButton *>(button()))
        push->showMenu();
    else if (auto *tool = qobject_cast<QToolButton *>(button()))
        tool->showMenu();
}

QStringList ZelAccessibleButton::actionNames() const
{
    QStringList names;
    if (button()->isEnabled()) {
        if (hasMenu())
            names << showMenuAction();
        names << (button()->isCheckable() ? toggleAction() : pressAction());
    }
    return names + QAccessibleWidget::actionNames();
}

void ZelAccessibleButton::doAction(const QString &name)
{
    const bool isPress = name == pressAction() || name == toggleAction();
    if (!isPress && name != showMenuAction()) {
        QAccessibleWidget::doAction(name);
        return;
    }
    if (!button()->isEnabled())
        return;
    const auto *tool = qobject_cast<QToolButton *>(button());
    const bool pressOpensMenu = !tool || tool->popupMode() == QToolButton::InstantPopup;
    if (hasMenu() && (name == showMenuAction() || pressOpensMenu))
        showMenu();
    else if (isPress)
        button()->click();
}

QStringList ZelAccessibleButton::keyBindingsForAction(const QString &name) const
{
    if (button()->shortcut().isEmpty() || (name != pressAction() && name != toggleAction()))
        return {};
    return {button()->shortcut().toString()};
}
