#include "ZelFocusFrame.h"

#include <QPainter>
#include <QWidget>

void ZelFocusFrame::paint(QWidget *widget)
{
    constexpr qreal radius = 2;
    QPainter painter(widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(widget->palette().color(QPalette::Active, QPalette::Highlight));
    painter.drawRoundedRect(QRectF(widget->rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
