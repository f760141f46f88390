#pragma once

#include <ZelWidgets/ZelGradientStop>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <memory>

class ZelGradient;
class ZelGradientGeometry;

/// The bar of a gradient with its stops to be dragged: opacity stops above it, colour stops below,
/// and a handle for the slope on either side of the selected stop.
///
/// A double click on the bar adds a colour stop, a dropped colour replaces that of a stop or adds
/// one. By the keyboard, Tab walks the stops, Left and Right move the selected one by a hundredth
/// (with Shift by a thousandth), Delete removes it and Return is a double click on it. A context
/// menu works on the whole gradient.
class ZELWIDGETS_EXPORT ZelGradientDisplay : public QWidget
{
    Q_OBJECT

public:
    ZelGradientDisplay();
    ~ZelGradientDisplay() override;

    /// Null once the gradient is gone.
    ZelGradient *gradient() const;
    /// Doesn't take ownership; null is allowed.
    void setGradient(ZelGradient *gradient);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A double click on the selected stop, or Return.
    void stopDoubleClicked(ZelGradientStop stop);
    /// After each edit by the user; during a drag after each move, whether or not it changed
    /// anything.
    void gradientChanged();

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class AccessibleStops;
    enum DragMode { SlopeIn = -1, Location = 0, SlopeOut = 1, Nothing = 2 };

    void computeGradientRect();
    void paintColorStop(QPainter &painter, ZelGradientStop const &stop) const;
    void paintAlphaStop(QPainter &painter, ZelGradientStop const &stop) const;
    QRect paintShapeMarker(QPainter &painter, ZelGradientStop const &stop);
    float pixelToLocation(int x) const;
    float pixelToSlope(int x, ZelGradientStop const &stop, ZelGradientStop const &neighbour) const;
    int slopeToPixel(float slope, ZelGradientStop const &stop,
                     ZelGradientStop const &neighbour) const;
    ZelGradientStop stopAt(QPoint const &point);
    QRect stopHitRect(ZelGradientStop const &stop);
    int stopLocationToPixel(float location) const;

    ZelGradientGeometry bar() const;
    void paintBar(QPainter &painter) const;
    void paintSlopes(QPainter &painter);
    QBrush fillOf(const ZelGradientStop &stop) const;
    void dragSlope(ZelGradientStop selected, int x);
    void select(const ZelGradientStop &stop);
    void moveTo(ZelGradientStop stop, float location);
    void step(float distance);
    bool showTip(const QPoint &pos);

    QPointer<ZelGradient> gradient_;
    QPixmap background_;
    QRect gradientRect_;
    ZelGradientStop beforeStop_;
    ZelGradientStop afterStop_;
    QRect beforeMarkerRect_;
    QRect afterMarkerRect_;
    QPoint pressPos_;
    int dragMode_ = Location;
};
