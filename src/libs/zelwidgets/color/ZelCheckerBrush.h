#pragma once

#include <QBrush>
#include <QImage>
#include <QSize>

class QColor;

/// What is seen through a colour that isn't opaque.
namespace ZelCheckerBrush {

/// A checker of neutral greys, of this size in device-independent pixels.
QImage checker(const QSize &size, qreal pixelRatio);
/// The colour, with its alpha, over a checker; to be painted from the origin of the area.
QBrush under(const QColor &color, const QSize &size, qreal pixelRatio);

} // namespace ZelCheckerBrush
