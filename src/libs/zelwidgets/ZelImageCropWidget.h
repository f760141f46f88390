#pragma once

#include <ZelWidgets/ZelSubRectSelector>
#include <ZelWidgets/zelwidgets_export.h>

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QRect>

class QRegion;

/// Shows a picture, pixel for pixel, with a rectangle of a fixed aspect ratio over it: clear
/// inside, darkened outside. The rectangle is dragged by mouse. The arrow keys move it by a pixel,
/// with Shift by ten; with Control they move its right and lower edge.
class ZELWIDGETS_EXPORT ZelImageCropWidget : public QLabel
{
    Q_OBJECT

public:
    /// The crop size gives the aspect ratio of the rectangle, which at first is as large as the
    /// picture allows. A null picture is reported and leaves nothing to crop.
    ZelImageCropWidget(const QPixmap &picture, const QSize &cropSize);

    /// Cuts the picture to the rectangle, which then is all of it.
    void cropImage();
    /// The part of the picture that is inside the rectangle.
    QImage getImage() const;
    /// The rectangle, in pixels of the picture.
    QRect cropRect() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void updateImage();
    void compose(const QRegion &region);
    void updateOverrideCursor();
    void describe();
    void followInScrollArea(const QPoint &step, bool isResize);
    QPoint pictureOrigin() const;
    QPoint picturePosition(const QMouseEvent *event) const;

    QPixmap picture_;
    QPixmap overlay_;
    QSize pictureSize_;
    ZelSubRectSelector selector_;
    QRect shownRect_;
};
