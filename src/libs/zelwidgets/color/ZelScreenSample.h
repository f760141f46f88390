#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRect>

/// What is on a screen around a place. Places and regions count from the top left of the screen, in
/// device-independent pixels; the picture holds the pixels of the device.
class ZelScreenSample
{
public:
    ZelScreenSample() = default;
    /// The picture shows the region, whatever pixel ratio it says to have.
    ZelScreenSample(const QImage &picture, const QRect &region, const QPointF &place);

    /// The part of the screen to be grabbed for so many pixels of the device around a place. Its
    /// corner lies on a whole pixel of the device at every scale in steps of a twentieth.
    static QRect regionAround(const QPointF &place, const QSize &screen, qreal pixelRatio,
                              int pixels);

    /// Whether there is no pixel at the place.
    bool isNull() const { return !picture_.rect().contains(pixel_); }
    /// Invalid if the sample is null.
    QColor color() const;
    /// So many pixels to each side, with that of the place in the middle; transparent where there
    /// is no screen.
    QImage cutOut(int pixels) const;

private:
    QImage picture_;
    QPoint pixel_;
};
