#include "ZelNumberText.h"

#include <cmath>

namespace ZelNumberText {

int countDecimals(const QString &text, const QLocale &locale)
{
    const QString trimmed = text.trimmed();
    const qsizetype point = trimmed.indexOf(locale.decimalPoint());
    return point < 1 ? 0 : static_cast<int>(trimmed.size() - point - 1);
}

int decimalsFor(double value, const Format &format)
{
    const double size = std::abs(value);
    if (format.decimalsIsAbsolute || size == 0.0 || !(size < 1.0))
        return format.decimals;
    return format.decimals - static_cast<int>(std::log10(size));
}

QString stripEndingZeros(const QString &text, const QLocale &locale)
{
    const QString point = locale.decimalPoint();
    const QString zero = locale.zeroDigit();
    QString result = text;
    if (result.contains(point)) {
        while (result.endsWith(zero))
            result.chop(zero.size());
    }
    if (point.size() == 1 && result.endsWith(point))
        result.chop(1);
    return result == locale.negativeSign() + zero ? zero : result;
}

QString fromNumber(double value, const Format &format, const QLocale &locale)
{
    const QString text = locale.toString(value, 'F', decimalsFor(value, format));
    return format.stripTailingZeros ? stripEndingZeros(text, locale) : text;
}

QString spinBoxText(double value, int decimals, const QLocale &locale)
{
    QString text = locale.toString(value, 'F', decimals);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u',') || text.endsWith(u'.'))
        text.remove(text.back());
    return text;
}

QString readable(QString text, const QLocale &locale)
{
    const QString minus = locale.negativeSign();
    if (minus != QLatin1String("-"))
        text.replace(minus, QLatin1String("-"));
    return text.remove(QChar(0x061c)).remove(QChar(0x200e)).remove(QChar(0x200f));
}

void makeReadable(QString &text, int &position, const QLocale &locale)
{
    position = static_cast<int>(readable(text.left(position), locale).size());
    text = readable(text, locale);
}

bool isNumber(QString text, const Frame &frame)
{
    if (!frame.prefix.isEmpty() && text.startsWith(frame.prefix))
        text.remove(0, frame.prefix.size());
    if (!frame.suffix.isEmpty() && text.endsWith(frame.suffix))
        text.chop(frame.suffix.size());
    bool isRead = false;
    frame.locale.toDouble(readable(text, frame.locale), &isRead);
    return isRead;
}

double keptFromZero(double value)
{
    if (!(std::abs(value) < smallestNonZero))
        return value;
    return value >= 0.0 ? smallestNonZero : -smallestNonZero;
}

std::optional<int> stepsPastZero(double value, double singleStep, int steps)
{
    constexpr double smallestStep = 2.0 * smallestNonZero;
    if (!(std::abs(value + singleStep * steps) < smallestNonZero))
        return steps;
    if (singleStep < smallestStep)
        return std::nullopt;
    return steps < 1 ? steps - 1 : steps + 1;
}

} // namespace ZelNumberText
