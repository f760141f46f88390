#include "ZelIconWidget.h"

#include "ZelAccessible.h"

#include <QPainter>

ZelIconWidget::ZelIconWidget(const QIcon &icon, QIcon::Mode mode, QIcon::State state)
    : icon_(icon)
    , mode_(mode)
    , state_(state)
{
    ZelAccessible::installFactory();
}

void ZelIconWidget::setIcon(const QIcon &icon)
{
    icon_ = icon;
    update();
}

void ZelIconWidget::setMode(QIcon::Mode mode)
{
    if (mode == mode_)
        return;
    mode_ = mode;
    update();
}

void ZelIconWidget::setState(QIcon::State state)
{
    if (state == state_)
        return;
    state_ = state;
    update();
}

void ZelIconWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    icon_.paint(&painter, rect(), Qt::AlignCenter, mode_, state_);
}
