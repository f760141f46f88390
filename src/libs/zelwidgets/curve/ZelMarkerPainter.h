#pragma once

#include <QPainterPath>
#include <QRgb>

#include <memory>

class QPainter;
struct ZelMarkerStamps;

/// Everything that the picture of a marker depends on, in pixels.
struct ZelMarkerLook
{
    bool isRound = true;
    double size = 0;
    double penWidth = 0;
    QRgb pen = 0;
    QRgb brush = 0;

    bool operator==(const ZelMarkerLook &other) const = default;
};

/// Paints markers, of which there are thousands alike: what was painted once is stamped wherever a
/// marker of the same look comes to lie, to within an eighth of a pixel.
///
/// Painters that don't paint pixels of a screen, or that turn or stretch, get the shape itself, as
/// do large markers.
class ZelMarkerPainter
{
public:
    ZelMarkerPainter();
    ~ZelMarkerPainter();

    /// Paints the marker about (0, 0).
    void paint(QPainter &painter, const ZelMarkerLook &look);

private:
    std::shared_ptr<ZelMarkerStamps> stamps_;
};

/// A circle or square about (0, 0). Markers of one size share their path.
QPainterPath zelMarkerPath(bool isRound, double size);

/// The height of the application font, by which markers are sized.
double zelApplicationFontHeight();
