#include "ZelWidgetPolish.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStyle>

namespace ZelWidgetPolish {

void polish(QWidget *widget)
{
    // Qt polishes the others itself when they are first shown. Those that style sheets don't reach,
    // such as a popup's frame or a viewport, take their part from the style below and the event.
    if (!widget || !widget->testAttribute(Qt::WA_WState_Polished))
        return;
    const QPointer<QWidget> guard(widget);
    widget->style()->polish(widget);
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &change);
    if (guard)
        widget->update();
}

} // namespace ZelWidgetPolish
