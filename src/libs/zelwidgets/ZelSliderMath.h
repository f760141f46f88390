#pragma once

#include <QVarLengthArray>

/// The arithmetic of the bound sliders, apart from widgets. Positions of a slider of real numbers
/// run from 0 to steps.
namespace ZelSliderMath {

/// Positions of a slider of real numbers.
constexpr int steps = 1000;

/// Truncated, and within 0 to steps; the nearest end for a number out of range, 0 for none at all.
int position(float value, double minimum, double maximum);
/// The number at a position. One that the narrowing took out of the range moves one float back.
float value(int position, double minimum, double maximum);
/// The number at a part of the way from minimum to maximum, within them.
float valueAt(float part, double minimum, double maximum);
/// The position at a part of the way from minimum to maximum, truncated, within them.
int positionAt(float part, int minimum, int maximum);
/// Within the ends, these narrowed; the upper end is tested first.
float bounded(float value, double minimum, double maximum);

/// A stretch of a painted groove.
struct GrooveLine
{
    enum Pen : int {
        Present,    ///< whatever was set before
        Background, ///< the part that isn't filled
        Fill
    };
    int from;
    int to;
    Pen pen;
    bool operator==(const GrooveLine &) const = default;
};

using GrooveLines = QVarLengthArray<GrooveLine, 3>;

/// The lines beside a handle of this size at a part of the way, filled from the left end.
GrooveLines groove(float part, int width, int handle);
/// The same, filled from the centre.
GrooveLines grooveFromCentre(float part, int width, int handle);

} // namespace ZelSliderMath
