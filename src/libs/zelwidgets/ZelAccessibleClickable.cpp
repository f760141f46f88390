#include "ZelAccessibleClickable.h"

#include "ZelClickableLineEdit.h"
#include "ZelEditableLabel.h"
#include "ZelFlipLabel.h"

namespace {

/// A picture, named by the accessible name or the tool tip.
class AccessiblePicture : public QAccessibleWidget
{
public:
    explicit AccessiblePicture(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Graphic)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? widget()->toolTip() : text;
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className == QLatin1String("ZelClickableLineEdit"))
        return new ZelAccessibleClickable(qobject_cast<QWidget *>(object), QAccessible::Link);
    if (className == QLatin1String("ZelFlipLabel"))
        return new ZelAccessibleClickable(qobject_cast<QWidget *>(object), QAccessible::Button);
    if (className == QLatin1String("ZelEditableLabel"))
        return new ZelAccessibleClickable(qobject_cast<QWidget *>(object), QAccessible::StaticText);
    if (className == QLatin1String("ZelIconWidget") ||
        className == QLatin1String("ZelPixmapLabel") ||
        className == QLatin1String("ZelAspectRatioLabel"))
        return new AccessiblePicture(qobject_cast<QWidget *>(object));
    return nullptr;
}

} // namespace

ZelAccessibleClickable::ZelAccessibleClickable(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{}

void ZelAccessibleClickable::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

QString ZelAccessibleClickable::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? shownText() : text;
}

QAccessible::State ZelAccessibleClickable::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (const auto *label = qobject_cast<ZelFlipLabel *>(object())) {
        state.expandable = true;
        state.expanded = label->isOpen();
        state.collapsed = !label->isOpen();
    } else if (const auto *editable = qobject_cast<ZelEditableLabel *>(object())) {
        state.readOnly = !editable->isEditable();
    } else {
        state.linked = true;
        state.readOnly = true;
    }
    return state;
}

QStringList ZelAccessibleClickable::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled())
        names.prepend(pressAction());
    return names;
}

void ZelAccessibleClickable::doAction(const QString &name)
{
    if (name != pressAction()) {
        QAccessibleWidget::doAction(name);
        return;
    }
    if (!widget()->isEnabled())
        return;
    if (auto *edit = qobject_cast<ZelClickableLineEdit *>(object()))
        Q_EMIT edit->clicked();
    else if (auto *label = qobject_cast<ZelFlipLabel *>(object()))
        Q_EMIT label->clicked();
    else if (auto *editable = qobject_cast<ZelEditableLabel *>(object()))
        editable->startEdit();
}

QString ZelAccessibleClickable::shownText() const
{
    if (const auto *edit = qobject_cast<ZelClickableLineEdit *>(object()))
        return edit->text();
    if (const auto *label = qobject_cast<ZelFlipLabel *>(object()))
        return label->text();
    const auto *editable = qobject_cast<ZelEditableLabel *>(object());
    return editable ? editable->getText() : QString();
}
