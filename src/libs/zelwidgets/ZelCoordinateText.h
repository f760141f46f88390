#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QString>

#include <optional>

/// Geographic positions as texts and back, without widgets.
///
/// A text is a latitude of at most 90 degrees with N or S and a longitude of at most 180 with E or
/// W, each with up to eight decimals; for example "48.1372 N 11.5755 E". Blanks are free, the
/// degree sign and a comma between the two may be there, letters may be small.
namespace ZelCoordinateText {

struct Position
{
    float latitude = 0;
    float longitude = 0;
};

/// Whether both numbers lie on the globe; NaN does not.
bool isOnGlobe(const Position &position);
/// The text with plain digits, points and blanks: what the locale, or another script, writes in
/// its own way.
QString normalized(const QString &text, const QLocale &locale);
/// What a normalized text has to match as a whole.
QRegularExpression expression();
/// The position of a match; south and west are negative.
std::optional<Position> read(const QRegularExpressionMatch &match);
/// Six significant digits each, in the locale's numbers.
QString write(const Position &position, const QLocale &locale);

} // namespace ZelCoordinateText
