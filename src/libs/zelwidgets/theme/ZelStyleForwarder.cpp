#include "ZelStyleForwarder.h"

#include <QCommonStyle>
#include <QWidget>

ZelStyleForwarder::ZelStyleForwarder(QObject *parent, QStyle *baseStyle)
    : baseStyle_(baseStyle)
{
    setParent(parent);
}

ZelStyleForwarder::ZelStyleForwarder(QWidget *widget)
    : ZelStyleForwarder(widget, widget->style())
{}

QStyle *ZelStyleForwarder::baseStyle() const
{
    if (!baseStyle_) {
        baseStyle_ = new QCommonStyle;
        baseStyle_->setParent(const_cast<ZelStyleForwarder *>(this));
    }
    return baseStyle_;
}

void ZelStyleForwarder::polish(QPalette &palette)
{
    baseStyle()->polish(palette);
}

void ZelStyleForwarder::polish(QApplication *application)
{
    baseStyle()->polish(application);
}

void ZelStyleForwarder::polish(QWidget *widget)
{
    baseStyle()->polish(widget);
}

void ZelStyleForwarder::unpolish(QWidget *widget)
{
    baseStyle()->unpolish(widget);
}

void ZelStyleForwarder::unpolish(QApplication *application)
{
    baseStyle()->unpolish(application);
}

QRect ZelStyleForwarder::itemTextRect(const QFontMetrics &metrics, const QRect &rect, int flags,
                                      bool enabled, const QString &text) const
{
    return baseStyle()->itemTextRect(metrics, rect, flags, enabled, text);
}

QRect ZelStyleForwarder::itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const
{
    return baseStyle()->itemPixmapRect(rect, flags, pixmap);
}

void ZelStyleForwarder::drawItemText(QPainter *painter, const QRect &rect, int flags,
                                     const QPalette &palette, bool enabled, const QString &text,
                                     QPalette::ColorRole textRole) const
{
    baseStyle()->drawItemText(painter, rect, flags, palette, enabled, text, textRole);
}

void ZelStyleForwarder::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                                       const QPixmap &pixmap) const
{
    baseStyle()->drawItemPixmap(painter, rect, alignment, pixmap);
}

QPalette ZelStyleForwarder::standardPalette() const
{
    return baseStyle()->standardPalette();
}

void ZelStyleForwarder::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                      QPainter *painter, const QWidget *widget) const
{
    baseStyle()->drawPrimitive(element, option, painter, widget);
}

void ZelStyleForwarder::drawControl(ControlElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    baseStyle()->drawControl(element, option, painter, widget);
}

QRect ZelStyleForwarder::subElementRect(SubElement element, const QStyleOption *option,
                                        const QWidget *widget) const
{
    return baseStyle()->subElementRect(element, option, widget);
}

void ZelStyleForwarder::drawComplexControl(ComplexControl control,
                                           const QStyleOptionComplex *option, QPainter *painter,
                                           const QWidget *widget) const
{
    baseStyle()->drawComplexControl(control, option, painter, widget);
}

QStyle::SubControl ZelStyleForwarder::hitTestComplexControl(ComplexControl control,
                                                            const QStyleOptionComplex *option,
                                                            const QPoint &position,
                                                            const QWidget *widget) const
{
    return baseStyle()->hitTestComplexControl(control, option, position, widget);
}

QRect ZelStyleForwarder::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                        SubControl subControl, const QWidget *widget) const
{
    return baseStyle()->subControlRect(control, option, subControl, widget);
}

int ZelStyleForwarder::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                   const QWidget *widget) const
{
    return baseStyle()->pixelMetric(metric, option, widget);
}

QSize ZelStyleForwarder::sizeFromContents(ContentsType type, const QStyleOption *option,
                                          const QSize &size, const QWidget *widget) const
{
    return baseStyle()->sizeFromContents(type, option, size, widget);
}

int ZelStyleForwarder::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                 QStyleHintReturn *returnData) const
{
    return baseStyle()->styleHint(hint, option, widget, returnData);
}

QPixmap ZelStyleForwarder::standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                                          const QWidget *widget) const
{
    return baseStyle()->standardPixmap(pixmap, option, widget);
}

QIcon ZelStyleForwarder::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                      const QWidget *widget) const
{
    return baseStyle()->standardIcon(icon, option, widget);
}

QPixmap ZelStyleForwarder::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                               const QStyleOption *option) const
{
    return baseStyle()->generatedIconPixmap(mode, pixmap, option);
}

int ZelStyleForwarder::layoutSpacing(QSizePolicy::ControlType control1,
                                     QSizePolicy::ControlType control2, Qt::Orientation orientation,
                                     const QStyleOption *option, const QWidget *widget) const
{
    return baseStyle()->layoutSpacing(control1, control2, orientation, option, widget);
}
