#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QString>

/// The channels that a colour is edited by, and what their sliders and fields show.
namespace ZelColorChannel {

enum class Mode : int {
    Red,
    Green,
    Blue,
    Hue,
    Saturation,
    Value,
    Cyan,
    Magenta,
    Yellow,
    Black,
    Brightness, ///< of a grey: red, green and blue in one
    LabL,
    LabA,
    LabB,
    Temperature, ///< in kelvin, of a black body
};

/// The whole numbers that a slider can take, ends included.
struct Range
{
    int minimum;
    int maximum;
};

/// What the number field of a channel takes. The suffix is given with its leading space.
struct Field
{
    double minimum;
    double maximum;
    int decimals;
    QString suffix;
};

/// Translated; empty for a mode that is none of the channels.
ZELWIDGETS_EXPORT QString label(Mode mode);
/// 0 to 255 for a mode that is none of the channels.
ZELWIDGETS_EXPORT Range sliderRange(Mode mode);
ZELWIDGETS_EXPORT Field field(Mode mode);

/// The number of this channel in the unit of its field, not limited to the field's range. 0 for a
/// colour without temperature, and for a mode that is none of the channels.
ZELWIDGETS_EXPORT float channelValue(Mode mode, const ZelColor &color);
/// The colour with this channel replaced, in the space that the channel belongs to and without a
/// name. Brightness gives a grey, a temperature a colour of its own. A mode that is none of the
/// channels changes nothing.
ZELWIDGETS_EXPORT ZelColor setChannelValue(Mode mode, const ZelColor &color, float number);

} // namespace ZelColorChannel
