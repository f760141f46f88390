#pragma once

#include <QPointF>
#include <QRgb>

#include <array>

class QImage;

/// A triangle whose colours run evenly from corner to corner.
namespace ZelTriangleFill {

struct Corner
{
    QPointF point;
    QRgb color;
};

/// Sets the pixels whose centres lie in the triangle, opaque and without smoothing its edges. The
/// image has 32 bits a pixel; what lies outside of it is left out.
void fill(QImage &image, std::array<Corner, 3> corners);

} // namespace ZelTriangleFill
