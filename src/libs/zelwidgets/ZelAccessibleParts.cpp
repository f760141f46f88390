#include "ZelAccessibleParts.h"

#include <QWidget>

/// One part. It goes with its parent; an index behind the end is a part that is gone.
class ZelAccessibleParts::Child : public QAccessibleInterface,
                                  public QAccessibleValueInterface,
                                  public QAccessibleActionInterface
{
public:
    Child(ZelAccessibleParts *parent, int index)
        : parent_(parent)
        , index_(index)
    {}

    int index() const { return index_; }

    bool isValid() const override { return parent_->isValid() && index_ < parent_->partCount(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return parent_->window(); }
    QAccessibleInterface *parent() const override { return parent_; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Slider; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override { return part().value; }
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override { return part().maximum; }
    QVariant minimumValue() const override { return part().minimum; }
    QVariant minimumStepSize() const override { return part().step; }

    QStringList actionNames() const override { return {setFocusAction()}; }
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    Part part() const { return isValid() ? parent_->part(index_) : Part(); }

    ZelAccessibleParts *parent_;
    int index_;
};

QString ZelAccessibleParts::Child::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return part().name;
    return kind == QAccessible::Value ? part().text : QString();
}

QRect ZelAccessibleParts::Child::rect() const
{
    const QRect area = part().area;
    return QRect(parent_->widget()->mapToGlobal(area.topLeft()), area.size());
}

QAccessible::State ZelAccessibleParts::Child::state() const
{
    QAccessible::State state = parent_->state();
    state.focusable = true;
    state.selectable = true;
    const bool isCurrent = parent_->currentPart() == index_;
    state.selected = isCurrent;
    state.focused = isCurrent && parent_->widget()->hasFocus();
    state.invalid = !isValid();
    return state;
}

void *ZelAccessibleParts::Child::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

void ZelAccessibleParts::Child::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isValid() && isNumber && parent_->widget()->isEnabled())
        parent_->setPartValue(index_, number);
}

void ZelAccessibleParts::Child::doAction(const QString &name)
{
    if (name != setFocusAction() || !isValid() || !parent_->widget()->isEnabled())
        return;
    parent_->widget()->setFocus(Qt::OtherFocusReason);
    parent_->selectPart(index_);
}

ZelAccessibleParts::ZelAccessibleParts(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{}

ZelAccessibleParts::~ZelAccessibleParts()
{
    for (const QAccessible::Id id : std::as_const(children_))
        QAccessible::deleteAccessibleInterface(id);
}

ZelAccessibleParts *ZelAccessibleParts::of(QWidget *widget)
{
    return QAccessible::isActive()
               ? dynamic_cast<ZelAccessibleParts *>(QAccessible::queryAccessibleInterface(widget))
               : nullptr;
}

void ZelAccessibleParts::announceValue(QWidget *widget, int index)
{
    ZelAccessibleParts *parts = of(widget);
    QAccessibleInterface *child = parts ? parts->child(index) : nullptr;
    if (!child)
        return;
    QAccessibleValueChangeEvent event(child, child->valueInterface()->currentValue());
    QAccessible::updateAccessibility(&event);
}

void ZelAccessibleParts::announceCurrent(QWidget *widget, int index)
{
    ZelAccessibleParts *parts = of(widget);
    QAccessibleInterface *child = parts ? parts->child(index) : nullptr;
    if (!child || !widget->hasFocus())
        return;
    QAccessibleEvent event(child, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

int ZelAccessibleParts::childCount() const
{
    return partCount();
}

QAccessibleInterface *ZelAccessibleParts::child(int index) const
{
    if (index < 0 || index >= partCount())
        return nullptr;
    auto known = children_.constFind(index);
    if (known == children_.constEnd()) {
        auto *made = new Child(const_cast<ZelAccessibleParts *>(this), index);
        known = children_.insert(index, QAccessible::registerAccessibleInterface(made));
    }
    return QAccessible::accessibleInterface(*known);
}

QAccessibleInterface *ZelAccessibleParts::childAt(int x, int y) const
{
    const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
    for (int index = 0; index < partCount(); ++index) {
        if (part(index).area.contains(point))
            return child(index);
    }
    return nullptr;
}

QAccessibleInterface *ZelAccessibleParts::focusChild() const
{
    return widget()->hasFocus() ? child(currentPart()) : nullptr;
}

int ZelAccessibleParts::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *part = dynamic_cast<const Child *>(child);
    return part && part->parent() == this ? part->index() : -1;
}
