#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPixmap>
#include <QWidget>

class QTimer;

/// The plane of saturation (to the right) and value (upwards) of one hue, picked by mouse and by
/// keys: the arrows go by a hundredth, with Shift by a tenth.
///
/// The hue of the plane is a thing of its own: setColor() moves the marker only.
class ZELWIDGETS_EXPORT ZelRGBSpectrum : public QWidget
{
    Q_OBJECT

public:
    explicit ZelRGBSpectrum(ZelColor const &color, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Emits nothing.
    void setColor(ZelColor color);
    /// In degrees. The plane follows once no other hue has come for 50 ms; where it is about to be
    /// seen for the first time, at once.
    void setHue(float hue);

Q_SIGNALS:
    /// The user picked a point; both are 0 to 1. Emitted at each press and move, whether they
    /// change or not, and before the marker moves.
    void colorChanged(float s, float v);

protected Q_SLOTS:
    void updateTimerEvent();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    friend class AccessibleSpectrum;

    void pickAt(QPointF point);
    void pick(float saturation, float value);
    void schedulePlane();
    void buildPlane();
    const QPixmap &scaledPlane();

    ZelColor color_;
    float hue_;
    QPixmap plane_;
    QPixmap scaledPlane_;
    QTimer *planeTimer_;
    bool seen_ = false;
};
