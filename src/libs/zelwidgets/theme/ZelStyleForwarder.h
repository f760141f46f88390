#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QStyle>

/// A style for a single widget that forwards everything to another style; subclasses override
/// what they want to change.
///
///     bar->setStyle(new SubclassOfZelStyleForwarder(bar));
///
/// If the other style goes away, a plain QCommonStyle takes its place.
class ZELWIDGETS_EXPORT ZelStyleForwarder : public QStyle
{
    Q_OBJECT

public:
    ZelStyleForwarder(QObject *parent, QStyle *baseStyle);
    /// Forwards to the widget's present style; the widget owns the forwarder.
    explicit ZelStyleForwarder(QWidget *widget);

    /// Never null.
    QStyle *baseStyle() const;

    void polish(QPalette &palette) override;
    void polish(QApplication *application) override;
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;
    void unpolish(QApplication *application) override;
    QRect itemTextRect(const QFontMetrics &metrics, const QRect &rect, int flags, bool enabled,
                       const QString &text) const override;
    QRect itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override;
    QPalette standardPalette() const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     const QPoint &position,
                                     const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option = nullptr,
                           const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;
    int layoutSpacing(QSizePolicy::ControlType control1, QSizePolicy::ControlType control2,
                      Qt::Orientation orientation, const QStyleOption *option = nullptr,
                      const QWidget *widget = nullptr) const override;

private:
    mutable QPointer<QStyle> baseStyle_;
};
