#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPixmap>
#include <QProxyStyle>

/// The application's style: corrects a few metrics of the base style and paints the right arrow of
/// menus and the separators of tool bars.
///
///     QApplication::setStyle(new ZelmoraStyle);
class ZELWIDGETS_EXPORT ZelmoraStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ZelmoraStyle();
    /// Takes the base style over.
    explicit ZelmoraStyle(QStyle *baseStyle);
    explicit ZelmoraStyle(const QString &styleKey);
    ~ZelmoraStyle() override;

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    /// Items of a menu in which any item has an icon all reserve room for one.
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;

private:
    void drawArrowRight(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void updateArrowRight(int side, int ratio, const QWidget *widget) const;

    mutable QPixmap arrowRight_;
    mutable bool arrowRightIsDark_ = false;
};
