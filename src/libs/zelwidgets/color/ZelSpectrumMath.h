#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QSize>

/// The plane of saturation and value of one hue: its picture, and which point stands for what.
/// Saturation grows to the right, value upwards; both go from 0 to 1.
namespace ZelSpectrumMath {

inline constexpr int planeSize = 256;

struct SaturationValue
{
    float saturation;
    float value;
};

/// The picture of the plane, planeSize pixels each way. Each channel is raised to the exponent,
/// which has to be above 0; 1 leaves them alone. Degrees outside 0 to 360 are folded.
QImage plane(float hue, float exponent);

/// What a point of a field of this size stands for; a point beyond its edge counts as on the edge.
SaturationValue at(QPointF point, QSize field);
/// Where saturation and value lie in a field of this size.
QPoint pointOf(SaturationValue part, QSize field);

/// White on dark colours, black on the others.
QColor markerColor(const QColor &ground);

} // namespace ZelSpectrumMath
