#include "IconSizeStyle.h"

#include <QApplication>
#include <QFontMetrics>

namespace {

/// The icons stand on a grid of 24 units; even sizes keep their lines sharp.
int heightOfFont()
{
    return QFontMetrics(QApplication::font()).height() / 2 * 2;
}

} // namespace

int IconSizeStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                               const QWidget *widget) const
{
    switch (metric) {
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_TabBarIconSize:
        return qMax(QProxyStyle::pixelMetric(metric, option, widget), heightOfFont());
    case PM_ListViewIconSize:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return pixelMetric(PM_SmallIconSize);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}
