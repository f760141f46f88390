#pragma once

#include <QString>

#include <map>
#include <string>

/// Texts of the `.style` file and what is done with them, apart from files and widgets.
///
/// The file holds a palette (JSON with `/* */` comments: theme name -> key -> value), the marker
/// line, and a style sheet in which the palette's keys stand for values.
namespace ZelStylePalette {

/// Palette keys and their values in UTF-8, ordered by bytes.
using Colors = std::map<std::string, std::string>;
/// The colours of each theme.
using Table = std::map<std::string, Colors>;

struct Sections
{
    QString palette;
    QString sheet;
    bool hasPalette = false;
};

/// Cuts a text at the marker. Without one, all of it is the sheet.
Sections splitSections(const QString &text);
/// The text without its `/* */` comments; a comment that isn't closed stays.
QString withoutComments(const QString &text);

/// The palette of a JSON text. Throws an exception of the JSON library at the first fault; the
/// themes before it are in the table by then.
void parseStrictly(const QString &json, Table &table);
/// The palette of a section with comments. A fault is told as a critical message; the themes
/// before it are the result.
Table parse(const QString &section);

/// Puts the values in for the keys. An occurrence is left alone if the second character behind it
/// is a letter, a digit, "-" or "_".
QString substitute(QString text, const Colors &colors);

/// The sheet with this font size in points in its first line, in place of an earlier font rule.
QString withFontRule(const QString &sheet, int points);
/// True if the sheet begins with a font rule.
bool hasFontRule(const QString &sheet);

} // namespace ZelStylePalette
