#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QPixmap>
#include <QSlider>

/// An upright slider for the hue, 0 to 359 degrees, on a strip of the pure hues.
///
/// A click goes where it is. Arrow keys go by about one hundredth of the circle, with Shift by a
/// tenth; the wheel turns only with Control.
class ZELWIDGETS_EXPORT ZelHueSlider : public QSlider
{
    Q_OBJECT
    /// Of the ring of the handle; white until the style sheet sets it.
    Q_PROPERTY(QColor cursorColor READ cursorColor WRITE setCursorColor)

public:
    explicit ZelHueSlider(QWidget *parent = nullptr);
    ~ZelHueSlider() override;

    QColor cursorColor() const { return cursorColor_; }
    void setCursorColor(const QColor &color);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void makeStrip();
    const QPixmap &scaledStrip();
    void goTo(int y);

    QPixmap strip_;
    QPixmap scaledStrip_;
    bool dragging_ = false;
    QColor cursorColor_ = Qt::white;
};
