#include "ZelAccessible.h"

#include "ZelClickableLineEdit.h"
#include "ZelEditableLabel.h"
#include "ZelFlipLabel.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QToolButton>

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

void addExpansion(QAccessible::State &state, bool isOpen)
{
    state.expandable = true;
    state.expanded = isOpen;
    state.collapsed = !isOpen;
}

/// A control that shows a text or a picture.
class Control : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !text.isEmpty())
            return text;
        const QString shown = shownText();
        return shown.isEmpty() ? plainText(widget()->toolTip()) : shown;
    }

    QStringList actionNames() const override
    {
        return (widget()->isEnabled() ? ownActions() : QStringList()) +
               QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction() || name == toggleAction() || name == showMenuAction()) {
            if (widget()->isEnabled())
                run(name);
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

protected:
    virtual QString shownText() const { return {}; }
    /// What an enabled control offers beside the focus.
    virtual QStringList ownActions() const { return {}; }
    virtual void run(const QString &) {}
};

class Button : public Control
{
public:
    using Control::Control;

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Accelerator && !button()->shortcut().isEmpty())
            return button()->shortcut().toString(QKeySequence::NativeText);
        // The text of a button says more than a label beside it.
        const bool isNamed = !button()->accessibleName().isEmpty() || button()->text().isEmpty();
        return kind == QAccessible::Name && !isNamed ? shownText() : Control::text(kind);
    }

    QAccessible::Role role() const override
    {
        const QAccessible::Role role = Control::role();
        return role == QAccessible::Button && menu() ? QAccessible::ButtonMenu : role;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = Control::state();
        state.pressed = button()->isDown();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.hasPopup = menu() != nullptr;
        const auto *box = qobject_cast<QCheckBox *>(button());
        if (box && box->checkState() == Qt::PartiallyChecked) {
            state.checked = false;
            state.checkStateMixed = true;
        }
        return state;
    }

    QStringList keyBindingsForAction(const QString &name) const override
    {
        if (button()->shortcut().isEmpty() || (name != pressAction() && name != toggleAction()))
            return {};
        return {button()->shortcut().toString()};
    }

protected:
    QAbstractButton *button() const { return static_cast<QAbstractButton *>(object()); }

    QMenu *menu() const
    {
        if (const auto *push = qobject_cast<const QPushButton *>(button()))
            return push->menu();
        const auto *tool = qobject_cast<const QToolButton *>(button());
        return tool ? tool->menu() : nullptr;
    }

    QString shownText() const override { return withoutMnemonic(button()->text()); }

    QStringList ownActions() const override
    {
        QStringList names;
        if (menu())
            names << showMenuAction();
        return names << (button()->isCheckable() ? toggleAction() : pressAction());
    }

    void run(const QString &name) override
    {
        const auto *tool = qobject_cast<QToolButton *>(button());
        const bool pressOpensMenu = !tool || tool->popupMode() == QToolButton::InstantPopup;
        if (menu() && (name == showMenuAction() || pressOpensMenu))
            showMenu();
        else if (name != showMenuAction())
            button()->click();
    }

private:
    void showMenu()
    {
        if (auto *push = qobject_cast<QPushButton *>(button()))
            push->showMenu();
        else if (auto *tool = qobject_cast<QToolButton *>(button()))
            tool->showMenu();
    }
};

/// The header of a section: pressed, not checked; whether the section is open is its state.
class SectionHeader : public Button
{
public:
    using Button::Button;

    QAccessible::State state() const override
    {
        QAccessible::State state = Button::state();
        state.checkable = false;
        state.checked = false;
        addExpansion(state, button()->isChecked());
        return state;
    }

protected:
    QStringList ownActions() const override { return {pressAction()}; }
};

class FlipLabel : public Control
{
public:
    using Control::Control;

    QAccessible::State state() const override
    {
        QAccessible::State state = Control::state();
        addExpansion(state, label()->isOpen());
        return state;
    }

protected:
    QString shownText() const override { return label()->text(); }
    QStringList ownActions() const override { return {pressAction()}; }
    void run(const QString &) override { Q_EMIT label()->clicked(); }

private:
    ZelFlipLabel *label() const { return static_cast<ZelFlipLabel *>(object()); }
};

class LinkField : public Control
{
public:
    using Control::Control;

    QAccessible::State state() const override
    {
        QAccessible::State state = Control::state();
        state.linked = true;
        state.readOnly = true;
        return state;
    }

protected:
    QString shownText() const override { return edit()->text(); }
    QStringList ownActions() const override { return {pressAction()}; }
    void run(const QString &) override { Q_EMIT edit()->clicked(); }

private:
    ZelClickableLineEdit *edit() const { return static_cast<ZelClickableLineEdit *>(object()); }
};

class EditableLabel : public Control
{
public:
    using Control::Control;

    QAccessible::State state() const override
    {
        QAccessible::State state = Control::state();
        state.readOnly = !label()->isEditable();
        return state;
    }

protected:
    QString shownText() const override { return label()->getText(); }
    QStringList ownActions() const override
    {
        return label()->isEditable() ? QStringList{pressAction()} : QStringList();
    }
    void run(const QString &) override { label()->startEdit(); }

private:
    ZelEditableLabel *label() const { return static_cast<ZelEditableLabel *>(object()); }
};

template <typename Interface>
QAccessibleInterface *create(QWidget *widget, QAccessible::Role role)
{
    return new Interface(widget, role);
}

struct Entry
{
    const char *className;
    QAccessibleInterface *(*create)(QWidget *, QAccessible::Role);
    QAccessible::Role role;
};

constexpr Entry entries[] = {
    {"ZelSwitchControl", create<Button>, QAccessible::CheckBox},
    {"ZelCheckBox", create<Button>, QAccessible::CheckBox},
    {"ZelTextlessCheckBox", create<Button>, QAccessible::CheckBox},
    {"ZelTextlessRadioButton", create<Button>, QAccessible::RadioButton},
    {"ZelToolButton", create<Button>, QAccessible::Button},
    {"ZelTinyIconButton", create<Button>, QAccessible::Button},
    {"ZelMenuButton", create<Button>, QAccessible::Button},
    {"ZelAccordionButton", create<SectionHeader>, QAccessible::Button},
    {"ZelFlipLabel", create<FlipLabel>, QAccessible::Button},
    {"ZelClickableLineEdit", create<LinkField>, QAccessible::Link},
    {"ZelEditableLabel", create<EditableLabel>, QAccessible::StaticText},
    {"ZelIconWidget", create<Control>, QAccessible::Graphic},
    {"ZelPixmapLabel", create<Control>, QAccessible::Graphic},
    {"ZelAspectRatioLabel", create<Control>, QAccessible::Graphic},
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    for (const Entry &entry : entries) {
        if (className == QLatin1String(entry.className))
            return entry.create(static_cast<QWidget *>(object), entry.role);
    }
    return nullptr;
}

} // namespace

void ZelAccessible::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed);
}
