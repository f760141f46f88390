#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QDialog>

class QGraphicsDropShadowEffect;

/// A dialog without a window frame, for content of the caller's, with an optional drop shadow. Its
/// object name is "Viewer", by which the style sheet gives it its ground and border.
///
/// The shadow is off at first: 24 pixels of blur, 4 pixels down, black of 43 percent. While it is
/// on, the contents margins of the dialog are what the shadow takes, so put margins of your own on
/// the layout. Where windows can't be translucent the strip of the shadow is not seen through.
class ZELWIDGETS_EXPORT ZelBorderDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ZelBorderDialog(QWidget *parent = nullptr);

    void enableDropShadow(bool enable);
    bool isDropShadowEnabled() const;
    /// In pixels, from 0 to 500; what is outside counts as the nearest of them.
    void setShadowBlurRadius(double radius);
    double shadowBlurRadius() const;
    void setShadowColor(QColor color);
    QColor shadowColor() const;
    /// In pixels to the right and down, from -500 to 500; what is outside counts as the nearest of
    /// them.
    void setShadowOffsetX(double offset);
    double shadowOffsetX() const;
    void setShadowOffsetY(double offset);
    double shadowOffsetY() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// The number within the bounds; a warning and nothing (false) if it is none.
    bool bound(double *number, double lowest) const;
    void updateMargins();

    QGraphicsDropShadowEffect *shadow_;
};
