#pragma once

#include <ZelCore/BlendCurve>
#include <ZelCore/Span>

#include <QRgb>

#include <algorithm>
#include <array>

/// The arithmetic of gradients over plain data.
namespace ZelGradientRow {

/// Where a stop lies and how the blend meets it.
struct Knot
{
    float location;
    float slopeIn;
    float slopeOut;
};

struct AlphaStop : Knot
{
    float alpha;
};

struct ColorStop : Knot
{
    std::array<float, 3> rgb;
};

/// Both sorted by location.
struct Stops
{
    orv::Span<const AlphaStop> alpha;
    orv::Span<const ColorStop> color;
};

/// The interval between two knots.
orv::color::BlendCurve curve(const Knot &from, const Knot &to);

/// How far the blend has come at a location: 0 up to the start, 1 from the end on, and never
/// outside.
inline float weight(const orv::color::BlendCurve &curve, float x)
{
    if (curve.start >= x)
        return 0.0f;
    if (x >= curve.end)
        return 1.0f;
    const float u = (x - curve.start) * curve.invSpan;
    const float cubic = ((curve.a * u + curve.b) * u + curve.c) * u;
    return cubic > 0.0f ? std::min(cubic, 1.0f) : 0.0f;
}

/// Fill a row, its first pixel at 0 and its last at 1. It has to be 2 pixels at least.
///
/// No stop of a kind gives white or opaque, a single one its value. A row enters at most one
/// interval of each kind per pixel. Channels are clamped to 0 to 1, raised to the exponent (that of
/// the display gamma, above 0; 1 leaves them) and made into bytes as QColor does.
void paintBlended(const Stops &stops, float exponent, orv::Span<QRgb> row);
/// Values hold from behind their stop to the next.
void paintSolid(const Stops &stops, float exponent, orv::Span<QRgb> row);

} // namespace ZelGradientRow
