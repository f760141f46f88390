#include "ZelTabBar.h"

#include <QPainter>

ZelTabBar::ZelTabBar(QWidget *parent)
    : QTabBar(parent)
{
    setProperty("textOnlyTab", true);
    setDrawBase(false);
    setUsesScrollButtons(false);
}

void ZelTabBar::setDividerColor(const QColor &color)
{
    dividerColor_ = color;
    update();
}

void ZelTabBar::setDividerMargin(int margin)
{
    dividerMargin_ = margin;
    update();
}

void ZelTabBar::setTabWidth(int width)
{
    tabWidth_ = width;
    update();
}

void ZelTabBar::setTabMargin(int margin)
{
    tabMargin_ = margin;
    update();
}

void ZelTabBar::paintEvent(QPaintEvent *event)
{
    QTabBar::paintEvent(event);
    QPainter painter(this);
    painter.setPen(dividerColor_);
    const int step = tabWidth_ + 2 * tabMargin_;
    for (int i = 1; i < count(); ++i)
        painter.drawLine(step * i, dividerMargin_, step * i, height() - dividerMargin_);
}

ZelTabWidget::ZelTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new ZelTabBar(this));
}
