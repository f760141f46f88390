#include "ZelWidgetPolish.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>

namespace ZelWidgetPolish {
namespace {

// The application's style does nothing for a widget that its sheet can't have rules for, such as a
// viewport; a style of the widget's own may.
bool isReached(const QWidget &widget)
{
    return widget.testAttribute(Qt::WA_StyleSheet) || widget.style() != QApplication::style();
}

} // namespace

void polish(QWidget *widget)
{
    // Qt polishes the others itself when they are first shown.
    if (!widget || !widget->testAttribute(Qt::WA_WState_Polished) || !isReached(*widget))
        return;
    const QPointer<QWidget> guard(widget);
    widget->style()->polish(widget);
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &change);
    if (guard)
        widget->update();
}

} // namespace ZelWidgetPolish
