#pragma once

#include <ZelCore/ZelColor>

#include <QString>

#include <optional>

/// Colours as the text that people pass from program to program. The numbers are those of the
/// colour's RGB form, without any gamma, and what is outside 0 to 1 is clamped.
namespace ZelColorText {

/// "#ff8000"
QString hex(const ZelColor &color);
/// "rgb(255, 128, 0)"
QString rgb(const ZelColor &color);
/// "1.0000, 0.5020, 0.0000"
QString floats(const ZelColor &color);

/// Reads, in any case and with white space around and between:
/// - three or six hexadecimal digits, with "#" or "0x" in front or without; behind "#" also four or
///   eight, with alpha at the end
/// - rgb() or rgba() around three numbers, and alpha or not
/// - three numbers, separated by commas or white space: percentages, whole numbers up to 255, or
///   floats up to 1, which is what they are if one has a point or none is above 1. In rgb() they
///   are floats only if one has a point and none is above 1
/// - the names of CSS
/// Alpha is dropped, and so is a semicolon at the end. Nothing for any other text.
std::optional<ZelColor> read(const QString &text);

} // namespace ZelColorText
