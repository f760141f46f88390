#pragma once

#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QWidget>

/// A container for one widget that takes its height from its font.
class ZELWIDGETS_EXPORT ZelMetricWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelMetricWidget(ZelFontMetrics::HeightType type, QWidget *parent = nullptr,
                             Qt::WindowFlags flags = {});

    /// Takes the widget and owns it; centred between stretches, otherwise over the whole width. A
    /// widget that was here before is hidden and stays owned.
    void setChildWidget(QWidget *widget, bool centred = false);
    /// Added to the hints, beyond the minimum size.
    void setExtraSize(QSize const &size);
    /// An unknown type has no height of its own.
    void setHeightType(ZelFontMetrics::HeightType type);
    /// The least that the hints ask for.
    void setMinSize(QSize const &size);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize hintWithWidth(int width) const;

    ZelFontMetrics::HeightType heightType_;
    QSize minSize_;
    QSize extraSize_{0, 0};
    QPointer<QWidget> child_;
};
