#include "ZelDragIndicator.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

ZelDragIndicator::ZelDragIndicator(QWidget *parent)
    : QWidget(parent)
{
    setCursor(Qt::SizeAllCursor);
}

void ZelDragIndicator::mousePressEvent(QMouseEvent *event)
{
    event->ignore();
}

void ZelDragIndicator::mouseMoveEvent(QMouseEvent *event)
{
    event->ignore();
}

void ZelDragIndicator::mouseReleaseEvent(QMouseEvent *event)
{
    event->ignore();
}

void ZelDragIndicator::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    option.state |= QStyle::State_Horizontal;
    QPainter painter(this);
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorToolBarHandle, &option, &painter,
                                         this);
}

QSize ZelDragIndicator::sizeHint() const
{
    const int extent = style()->pixelMetric(QStyle::PM_ToolBarHandleExtent, nullptr, this);
    return {std::max(extent, 2), extent};
}
