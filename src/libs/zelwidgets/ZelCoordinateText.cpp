#include "ZelCoordinateText.h"

#include <cmath>

namespace {

constexpr float maximumLatitude = 90;
constexpr float maximumLongitude = 180;
constexpr int significantDigits = 6;
constexpr QChar arabicPoint(0x066B);
constexpr QChar mathematicalMinus(0x2212);

QChar plain(QChar character)
{
    const int digit = character.isDigit() ? character.digitValue() : -1;
    if (digit >= 0)
        return QChar(u'0' + digit);
    if (character == arabicPoint)
        return u'.';
    if (character == mathematicalMinus)
        return u'-';
    return character.isSpace() ? QChar(u' ') : character;
}

float degrees(const QRegularExpressionMatch &match, int group, QChar negative)
{
    QString number = match.captured(group);
    number.replace(u',', u'.');
    const float value = QLocale::c().toFloat(number);
    const bool isNegative = match.captured(group + 1).compare(negative, Qt::CaseInsensitive) == 0;
    return isNegative ? -value : value;
}

QString written(float degrees, QChar positive, QChar negative, const QLocale &locale)
{
    const double size = std::abs(static_cast<double>(degrees));
    return locale.toString(size, 'g', significantDigits) + u' ' +
           (degrees >= 0 ? positive : negative);
}

} // namespace

bool ZelCoordinateText::isOnGlobe(const Position &position)
{
    return std::abs(position.latitude) <= maximumLatitude &&
           std::abs(position.longitude) <= maximumLongitude;
}

QString ZelCoordinateText::normalized(const QString &text, const QLocale &locale)
{
    QString spelled = text;
    // Numbers near zero are written with an exponent.
    spelled.replace(locale.exponential(), QStringLiteral("e"), Qt::CaseInsensitive);
    QString result;
    result.reserve(spelled.size());
    for (const QChar character : std::as_const(spelled)) {
        if (character.category() != QChar::Other_Format)
            result.append(plain(character));
    }
    return result;
}

QRegularExpression ZelCoordinateText::expression()
{
    // The largest number has no decimals but zeros. Of numbers near zero write() gives more than
    // eight decimals, or an exponent.
    const QString number = QStringLiteral("((?:%1)(?:[.,]0{1,8})?"
                                          "|(?:%2)(?:[.,][0-9]{1,8})?(?:e-[0-9]{1,2})?"
                                          "|0[.,]0{1,3}[0-9]{1,6}) *+(?:\u00B0 *+)?");
    const QString latitude = number.arg(QStringLiteral("90"), QStringLiteral("[0-8]?[0-9]"));
    const QString longitude =
        number.arg(QStringLiteral("180"), QStringLiteral("1[0-7][0-9]|0?[0-9]{1,2}"));
    return QRegularExpression(
        QStringLiteral("\\A *+%1([NS]) *+(?:, *+)?%2([EW]) *+\\z").arg(latitude, longitude),
        QRegularExpression::CaseInsensitiveOption);
}

std::optional<ZelCoordinateText::Position>
ZelCoordinateText::read(const QRegularExpressionMatch &match)
{
    if (!match.hasMatch())
        return std::nullopt;
    return Position{degrees(match, 1, u'S'), degrees(match, 3, u'W')};
}

QString ZelCoordinateText::write(const Position &position, const QLocale &locale)
{
    return written(position.latitude, u'N', u'S', locale) + u' ' +
           written(position.longitude, u'E', u'W', locale);
}
