#pragma once

#include "OrbitCamera.h"
#include "ViewportRenderer.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

class ViewScene;
class ViewportGestures;

/// The view of the scene. The mouse does what the table of gestures says; by keyboard the arrow
/// keys turn the camera, with Shift they move it, with Control they turn the light, plus and minus
/// go nearer and away, Home shows everything, and the menu key opens the menu. Escape takes a drag
/// back. A drag with the gesture of a marquee selects all that the rectangle touches.
class Viewport : public QWidget
{
    Q_OBJECT

public:
    explicit Viewport(ViewScene *scene, QWidget *parent = nullptr);

    const OrbitCamera &camera() const { return camera_; }
    void setCamera(const OrbitCamera &camera,
                   ViewportRenderer::Pace pace = ViewportRenderer::Pace::Step);
    ViewportRenderer *renderer() const { return renderer_; }
    bool usesDevicePixels() const { return usesDevicePixels_; }
    /// One pixel of the picture for each of the display, or for each of the layout.
    void setUsesDevicePixels(bool on);
    /// The picture as it is, drawn to its end.
    QImage takePicture();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void fitAll();
    /// The selected object, or all.
    void fitSelected();
    void resetCamera();
    /// Draws anew, in the colours of the theme in force.
    void refresh();

Q_SIGNALS:
    void cameraChanged();
    /// The colour of the object is to be edited.
    void editWanted(int object);
    void said(const QString &entry);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void connectGestures();
    void requestPicture(ViewportRenderer::Pace pace);
    void follow(const QString &action, const QPointF &way, ViewportRenderer::Pace pace);
    void click(const QString &action, const QPoint &place);
    void growMarquee(const QPointF &way);
    void selectInMarquee();
    void dropMarquee();
    QRect marquee() const;
    void paintMarquee(QPainter *painter) const;
    void selectAt(const QPoint &place, bool toggles);
    void pickTarget(const QPoint &place);
    bool applyMaterialAt(const QString &action, const QPoint &place);
    void openMenu(const QPoint &globalPlace);
    void tellSelection();
    QPoint pixelAt(const QPoint &place) const;
    int objectAt(const QPoint &place) const;

    ViewScene *scene_;
    ViewportGestures *gestures_;
    ViewportRenderer *renderer_;
    OrbitCamera camera_;
    OrbitCamera cameraBefore_;
    QPixmap shown_;
    QColor heldColor_;
    /// How far a drag has gone that selects.
    std::optional<QPointF> marqueeWay_;
    bool usesDevicePixels_ = true;
};
