#pragma once

class QImage;
class QPaintDevice;
class ZelTriangleGeometry;
class QColor;
class QPointF;

/// How the ring of hues, the triangle inside it and their markers look. All of it paints in the
/// coordinates of the geometry; the pixel ratio is that of the image.
namespace ZelTrianglePainting {

void drawRing(QImage &image, const ZelTriangleGeometry &geometry);
/// Touches nothing but the triangle's own pixels.
void drawTriangle(QImage &image, const ZelTriangleGeometry &geometry, int hue);
/// The edges of the triangle, the marker on the ring and the selector of the colour.
void drawMarkers(QPaintDevice *device, const ZelTriangleGeometry &geometry, int hue,
                 const QColor &color, QPointF selector);

} // namespace ZelTrianglePainting
