#include "SimpleProgressBar.h"

#include <QPainter>

#include <algorithm>

SimpleProgressBar::SimpleProgressBar(QWidget *parent)
    : QProgressBar(parent)
{}

QRect SimpleProgressBar::filledRect(const QRect &bar, int value, int maximum)
{
    QRect filled = bar;
    if (maximum <= 0)
        return filled;
    const float share = std::clamp(float(value) / float(maximum), 0.0F, 1.0F);
    const int width = static_cast<int>(float(bar.right() - bar.left()) * share);
    filled.setRight(std::min(bar.left() + width, bar.right()));
    return filled;
}

void SimpleProgressBar::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setPen(QPen(Qt::gray));
    painter.drawRect(rect().marginsRemoved({0, 0, 1, 1}));
    painter.fillRect(filledRect(rect().marginsRemoved({2, 2, 2, 2}), value(), maximum()),
                     QColor(0x00, 0x66, 0xff));
}
