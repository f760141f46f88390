#include "ZelWidgetPolish.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStyle>

namespace ZelWidgetPolish {

void polish(QWidget *widget)
{
    // Qt polishes the others itself when they are first shown.
    if (!widget || !widget->testAttribute(Qt::WA_WState_Polished) ||
        !widget->testAttribute(Qt::WA_StyleSheet))
        return;
    const QPointer<QWidget> guard(widget);
    widget->style()->polish(widget);
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &change);
    if (guard)
        widget->update();
}

} // namespace ZelWidgetPolish
