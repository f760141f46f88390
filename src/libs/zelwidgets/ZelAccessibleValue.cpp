#include "ZelAccessibleValue.h"

#include <QAbstractSpinBox>
#include <QHash>
#include <QLocale>
#include <QPointer>

namespace {

constexpr char fieldProperty[] = "zelValueField";

} // namespace

ZelAccessibleValue::ZelAccessibleValue(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{}

void ZelAccessibleValue::describeBy(QWidget *widget, QAbstractSpinBox *field)
{
    widget->setProperty(fieldProperty, QVariant::fromValue(QPointer<QAbstractSpinBox>(field)));
}

void ZelAccessibleValue::announce(QWidget *widget, double value)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
}

void *ZelAccessibleValue::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString ZelAccessibleValue::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        const auto field = widget()->property(fieldProperty).value<QPointer<QAbstractSpinBox>>();
        return field ? field->text() : QLocale().toString(currentValue().toDouble());
    }
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? widget()->toolTip() : text;
}

namespace {

using Creators = QHash<QString, QAccessibleInterface *(*)(QWidget *)>;

Creators &creators()
{
    static Creators creators;
    return creators;
}

} // namespace

void ZelAccessibleValue::add(const char *className, Create create)
{
    if (creators().isEmpty())
        QAccessible::installFactory(&createInterface);
    creators().insert(QString::fromLatin1(className), create);
}

QAccessibleInterface *ZelAccessibleValue::createInterface(const QString &className, QObject *object)
{
    const Create create = creators().value(className);
    return create ? create(static_cast<QWidget *>(object)) : nullptr;
}
