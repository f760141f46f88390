#include "ZelEqualSizeTabBar.h"

#include <QStyleOptionTab>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr int defaultMargin = 30;
constexpr int leastMargin = 8;
constexpr int verticalMargin = 10;

} // namespace

ZelEqualSizeTabBar::ZelEqualSizeTabBar()
    : ZelEqualSizeTabBar(defaultMargin)
{}

ZelEqualSizeTabBar::ZelEqualSizeTabBar(int margin)
    : margin_(margin)
{}

int ZelEqualSizeTabBar::minimumWidth() const
{
    return count() * (maxTextWidth_ + leastMargin);
}

void ZelEqualSizeTabBar::setTabHeaderStyle(int style)
{
    style_ = style;
}

void ZelEqualSizeTabBar::setTabWidgetWidth(int)
{
    measure();
    updateGeometry();
}

QSize ZelEqualSizeTabBar::tabSizeHint(int) const
{
    return {maxTextWidth_ + margin_, fontMetrics().height() + verticalMargin};
}

void ZelEqualSizeTabBar::tabInserted(int index)
{
    measure();
    QTabBar::tabInserted(index);
}

void ZelEqualSizeTabBar::tabRemoved(int index)
{
    measure();
    QTabBar::tabRemoved(index);
}

void ZelEqualSizeTabBar::measure()
{
    maxTextWidth_ = 0;
    for (int i = 0; i < count(); ++i)
        maxTextWidth_ = std::max(maxTextWidth_, fontMetrics().boundingRect(tabText(i)).width());
}

void ZelEqualSizeTabBar::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.fillRect(rect(), palette().window());
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab option;
        initStyleOption(&option, i);
        painter.drawControl(QStyle::CE_TabBarTabShape, option);
        const auto group =
            option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        painter.setPen(palette().color(group, QPalette::WindowText));
        painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
    }
}
