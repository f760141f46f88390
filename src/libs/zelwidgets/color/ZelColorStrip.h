#pragma once

#include "color/ZelColorChannel.h"

#include <QImage>

/// The gradients along channel sliders.
namespace ZelColorStrip {

/// One row of RGB888 pixels: the channel from its lower end to its upper one, all other channels
/// as they are in the colour. What isn't within 0 to 1 as RGB is clamped.
///
/// The channels are raised to the exponent before they become bytes (1 leaves them). The range
/// counts for temperatures only. A mode that is none of the channels gives one pixel of the colour.
QImage image(ZelColorChannel::Mode mode, const ZelColor &color, float exponent,
             ZelColorChannel::Range temperatures);

/// Two columns of 360 rows: the pure hues, from 359 at the top down to 0.
QImage hues(float exponent);

/// The exponent that colours are shown with: that of the display's gamma if it is on and the
/// numbers aren't display values already, else 1.
float exponent(bool areDisplayValues);

} // namespace ZelColorStrip
