#include "ZelmoraStyle.h"

#include "ZelStyleIcon.h"

#include <ZelCore/ZelGlobalIconCache>

#include <QAction>
#include <QFontMetrics>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

bool isOnDenseScreen(const QWidget *widget)
{
    return widget && widget->devicePixelRatioF() > 1.0;
}

void drawToolBarSeparator(const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    const qreal ratio = widget->devicePixelRatioF();
    QPixmap pixmap((QSizeF(option->rect.size()) * ratio).toSize());
    if (pixmap.isNull())
        return;
    pixmap.fill(widget->palette().brush(QPalette::Current, QPalette::Window).color());
    {
        QPainter linePainter(&pixmap);
        QPen pen = linePainter.pen();
        pen.setWidth(int(ratio));
        pen.setColor(ZelGlobalIconCache::darkTheme() ? QColor(0, 0, 0) : QColor(224, 224, 224));
        linePainter.setPen(pen);
        const int width = pixmap.width();
        const int height = pixmap.height();
        if (width >= height)
            linePainter.drawLine(0, height / 2, width, height / 2);
        else
            linePainter.drawLine(width / 2, 0, width / 2, height);
    }
    pixmap.setDevicePixelRatio(ratio);
    painter->drawPixmap(option->rect, pixmap);
}

// The icon of an SVG engine has no sizes of its own.
bool isMenuItemWithScalableIcon(const QStyleOption *option)
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    return item && !item->icon.isNull() && item->icon.availableSizes().isEmpty();
}

} // namespace

ZelmoraStyle::ZelmoraStyle() = default;

ZelmoraStyle::ZelmoraStyle(QStyle *baseStyle)
    : QProxyStyle(baseStyle)
{}

ZelmoraStyle::ZelmoraStyle(const QString &styleKey)
    : QProxyStyle(styleKey)
{}

ZelmoraStyle::~ZelmoraStyle() = default;

QRect ZelmoraStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                   SubControl subControl, const QWidget *widget) const
{
    QRect rect = QProxyStyle::subControlRect(control, option, subControl, widget);
    if (control == CC_SpinBox && subControl == SC_SpinBoxDown && isOnDenseScreen(widget) &&
        2 * rect.height() + 1 < widget->height()) {
        rect.translate(0, 1);
    }
    return rect;
}

int ZelmoraStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return pixelMetric(PM_SmallIconSize);
    case PM_ToolBarIconSize:
        return qMax(16, pixelMetric(PM_SmallIconSize));
    case PM_SmallIconSize:
        if (widget && isMenuItemWithScalableIcon(option)) {
            return qMin(QProxyStyle::pixelMetric(metric, option, widget),
                        QFontMetrics(widget->font()).height());
        }
        break;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize ZelmoraStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                     const QSize &size, const QWidget *widget) const
{
    const auto *menu = qobject_cast<const QMenu *>(widget);
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (type == CT_MenuItem && menu && item) {
        const QList<QAction *> actions = menu->actions();
        const auto withIcon =
            std::find_if(actions.cbegin(), actions.cend(),
                         [](const QAction *action) { return !action->icon().isNull(); });
        // The menu made the option for this one question; base styles read the icon from it.
        if (withIcon != actions.cend())
            const_cast<QStyleOptionMenuItem *>(item)->icon = (*withIcon)->icon();
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int ZelmoraStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    if (hint == SH_EtchDisabledText || hint == SH_ItemView_ShowDecorationSelected)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void ZelmoraStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    if (option && widget && element == PE_IndicatorArrowRight) {
        drawArrowRight(option, painter, widget);
        return;
    }
    if (option && widget && element == PE_IndicatorToolBarSeparator) {
        drawToolBarSeparator(option, painter, widget);
        return;
    }
    const bool spinArrow = element == PE_IndicatorSpinUp || element == PE_IndicatorSpinDown;
    if (option && spinArrow && isOnDenseScreen(widget))
        const_cast<QStyleOption *>(option)->rect.adjust(-2, 0, 2, 0);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ZelmoraStyle::drawArrowRight(const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    const int ratio = qRound(widget->devicePixelRatioF());
    const int side = widget->fontMetrics().boundingRect(QLatin1Char('i')).height();
    const QRect &rect = option->rect;
    const QRect target(rect.right() - side, rect.top() - (side - rect.height()) / 2, side, side);
    const QSize pixelSize = (QSizeF(side, side) * ratio).toSize();
    if (arrowRight_.size() != pixelSize || arrowRightIsDark_ != ZelGlobalIconCache::darkTheme() ||
        arrowRight_.devicePixelRatio() != ratio) {
        updateArrowRight(side, ratio, widget);
    }
    painter->drawPixmap(target, arrowRight_);
}

void ZelmoraStyle::updateArrowRight(int side, int ratio, const QWidget *widget) const
{
    const ZelStyleIcon icon(QStringLiteral(":ui/widgetIcons/arrow_right.zelsvg"));
    const QSize size(side, side);
    const QWindow *window = widget->window()->windowHandle();
    arrowRight_ = window ? icon.pixmap(size, window->devicePixelRatio(), QIcon::Normal, QIcon::Off)
                         : icon.pixmap(size, QIcon::Normal, QIcon::Off);
    arrowRight_.setDevicePixelRatio(ratio);
    arrowRightIsDark_ = ZelGlobalIconCache::darkTheme();
}
