#include "color/ZelColorWidgetAccessible.h"

#include "color/ZelColorText.h"
#include "color/ZelColorWidget.h"

void AccessibleColor::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(
            [](const QString &className, QObject *object) -> QAccessibleInterface * {
                if (className != QLatin1String(ZelColorWidget::staticMetaObject.className()))
                    return nullptr;
                return new AccessibleColor(static_cast<QWidget *>(object));
            });
        return true;
    }();
    Q_UNUSED(installed)
}

QString AccessibleColor::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return ZelColorText::hex(field()->getZelColor());
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? widget()->toolTip() : text;
}

QStringList AccessibleColor::actionNames() const
{
    const QStringList names = QAccessibleWidget::actionNames();
    return widget()->isEnabled() ? QStringList(pressAction()) + names : names;
}

void AccessibleColor::doAction(const QString &name)
{
    if (name != pressAction())
        QAccessibleWidget::doAction(name);
    else if (widget()->isEnabled())
        field()->activate();
}

ZelColorWidget *AccessibleColor::field() const
{
    return static_cast<ZelColorWidget *>(object());
}
