#pragma once

#include <ZelCore/ZelColor>

#include <QString>

/// Colours as six hexadecimal digits, without any gamma.
namespace ZelColorHex {

/// In capitals. What isn't in the range of RGB is clamped; what isn't finite counts as 0.
QString write(const ZelColor &color);
/// An RGB colour from up to six digits, "#" or not. Three digits are doubled, zeros fill up others;
/// a pair that isn't hexadecimal counts as 0.
ZelColor read(QString text);

} // namespace ZelColorHex
