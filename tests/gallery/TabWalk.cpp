#include "TabWalk.h"

#include "OwnControl.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QRadioButton>
#include <QTest>

#include <algorithm>

namespace TabWalk {

QList<QWidget *> onceAround(QWidget *start)
{
    constexpr int mostStops = 300;
    QList<QWidget *> reached;
    start->setFocus(Qt::TabFocusReason);
    do {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.append(QApplication::focusWidget());
    } while (reached.last() != start && reached.size() < mostStops);
    return reached;
}

bool isStop(const QWidget *widget)
{
    const auto *radio = qobject_cast<const QRadioButton *>(widget);
    return isOwnControl(widget) && widget->isVisible() && widget->isEnabled() &&
           (!radio || radio->isChecked());
}

bool holds(const QList<QWidget *> &reached, const QWidget *control)
{
    return std::any_of(reached.begin(), reached.end(), [control](const QWidget *widget) {
        return widget == control || control->isAncestorOf(widget) ||
               widget == control->focusProxy();
    });
}

QString nameOf(const QWidget *widget)
{
    QString name = QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName() +
                   u' ' + widget->accessibleName();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        name += u' ' + button->text() + u' ' + button->toolTip();
    const auto *dock = widget->parentWidget();
    while (dock && !qobject_cast<const QDockWidget *>(dock))
        dock = dock->parentWidget();
    return dock ? name + QStringLiteral(" in ") + dock->objectName() : name;
}

} // namespace TabWalk
