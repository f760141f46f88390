#include "ZelFocusFrame.h"

#include <QPainter>
#include <QWidget>

void ZelFocusFrame::paint(QWidget *widget)
{
    constexpr qreal radius = 2;
    QPainter painter(widget);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(widget->rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(widget->palette().color(QPalette::Active, QPalette::Window));
    painter.drawRoundedRect(edge.adjusted(1, 1, -1, -1), radius, radius);
    painter.setPen(widget->palette().color(QPalette::Active, QPalette::Highlight));
    painter.drawRoundedRect(edge, radius, radius);
}
