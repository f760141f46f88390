#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

#include <memory>

class ZelScaleWidgetPrivate;

/// A scale in two directions. Closed it is one row, whose number is the factor of X; opened by its
/// caption it has a row for X and one for Y.
///
///     auto *scale = new ZelScaleWidget(tr("Scale"));
///     scale->set(1, 2, 2);
///     connect(scale, &ZelScaleWidget::scaleUpdated, texture, &Texture::setScale);
///
/// While the two are linked, as they are at first, Y is X times the ratio. The link button of the
/// open form lets them go their own ways; then their ratio follows them, so that the closed row
/// keeps the proportion.
class ZELWIDGETS_EXPORT ZelScaleWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelScaleWidget(QString const &text, QWidget *parent = nullptr);
    ~ZelScaleWidget() override;

    float scaleX() const;
    float scaleY() const;
    float aspectRatio() const;
    /// Whether X and Y are linked.
    bool keepAspectRatio() const;
    bool isOpen() const;

    void open(bool open);
    /// Shows the factors as they are, and the ratio that one follows the other by; emits nothing.
    /// A ratio that is zero or not finite is refused with a warning.
    void set(float x, float y, float ratio);
    /// Linked factors take the ratio: Y follows X, and scaleUpdated() tells it.
    void setAspectRatio(float ratio);
    void setKeepAspectRatio(bool keep);
    /// As that of the rows: the sliders' ranges follow the factors.
    void setAutoScaleRange(bool autoScale, bool growRange);
    /// Bounds what can be typed, and what a linked factor follows to; the row of the closed form
    /// has the limits of X. With rangesToo the sliders span the limits as well.
    void setLimits(bool rangesToo, float xMinimum, float xMaximum, float yMinimum, float yMaximum);

Q_SIGNALS:
    /// The user changed the scale: once for both factors.
    void scaleUpdated(float x, float y);

protected Q_SLOTS:
    void xyUpdated();
    void xUpdated();
    void yUpdated();
    void widgetOpen();
    void widgetClose();

private:
    std::unique_ptr<ZelScaleWidgetPrivate> d_;
};
