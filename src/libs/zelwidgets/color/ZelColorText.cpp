#include "color/ZelColorText.h"

#include <QColor>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr qsizetype longestText = 128;
constexpr float byteMax = 255.0f;

float clamped(double channel)
{
    return channel > 0.0 ? float(std::min(channel, 1.0)) : 0.0f;
}

std::array<int, 3> bytes(const ZelColor &color)
{
    const auto [red, green, blue] = color.toRGB();
    const auto byte = [](float channel) {
        return int(clamped(double(channel)) * byteMax + 0.5f);
    };
    return {byte(red), byte(green), byte(blue)};
}

ZelColor fromBytes(int red, int green, int blue)
{
    return {ZelColor::Space::RGB, float(red) / byteMax, float(green) / byteMax,
            float(blue) / byteMax};
}

bool isHexDigit(QChar character)
{
    const char16_t c = character.toLower().unicode();
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
}

/// The digits of a hexadecimal colour without its mark.
std::optional<ZelColor> readHex(QStringView digits, bool canHaveAlpha)
{
    if (!std::all_of(digits.begin(), digits.end(), isHexDigit))
        return {};
    if (canHaveAlpha && (digits.size() == 4 || digits.size() == 8))
        digits.chop(digits.size() / 4);
    if (digits.size() != 3 && digits.size() != 6)
        return {};
    const qsizetype width = digits.size() / 3;
    const auto channel = [&](int index) {
        const int number = digits.mid(index * width, width).toInt(nullptr, 16);
        return width == 1 ? number * 0x11 : number;
    };
    return fromBytes(channel(0), channel(1), channel(2));
}

enum class Scale { Percent, Bytes, Floats };

struct Number
{
    double value = 0;
    bool isPercent = false;
    bool hasPoint = false;
};

std::optional<Number> readNumber(QStringView text)
{
    Number number;
    if (text.endsWith(u'%')) {
        number.isPercent = true;
        text.chop(1);
    }
    const auto isAllowed = [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+' || c == u'e';
    };
    if (!std::all_of(text.begin(), text.end(), isAllowed))
        return {};
    bool ok = false;
    number.value = QLocale::c().toDouble(text, &ok);
    number.hasPoint = text.contains(u'.') || text.contains(u'e');
    if (!ok || !std::isfinite(number.value))
        return {};
    return number;
}

/// In rgb() whole numbers are bytes; elsewhere they are only if one of them can't be anything else.
std::optional<Scale> scaleOf(const std::array<Number, 3> &numbers, bool isRgb)
{
    const auto isPercent = [](const Number &number) {
        return number.isPercent;
    };
    if (std::any_of(numbers.begin(), numbers.end(), isPercent)) {
        if (!std::all_of(numbers.begin(), numbers.end(), isPercent))
            return {};
        return Scale::Percent;
    }
    const bool hasPoint = std::any_of(numbers.begin(), numbers.end(),
                                      [](const Number &number) { return number.hasPoint; });
    const bool isSmall = std::all_of(numbers.begin(), numbers.end(),
                                     [](const Number &number) { return number.value <= 1; });
    const bool areFloats = isRgb ? hasPoint && isSmall : hasPoint || isSmall;
    return areFloats ? Scale::Floats : Scale::Bytes;
}

/// Three numbers, and a fourth for alpha or not.
std::optional<ZelColor> readNumbers(const QString &text, bool isRgb)
{
    static const QRegularExpression separator(QStringLiteral("\\s*[,/]\\s*|\\s+"));
    const QStringList parts = text.trimmed().split(separator);
    if (parts.size() != 3 && parts.size() != 4)
        return {};
    std::array<Number, 3> numbers;
    for (int i = 0; i < int(parts.size()); ++i) {
        const std::optional<Number> number = readNumber(parts[i]);
        if (!number)
            return {};
        if (i < int(numbers.size()))
            numbers[size_t(i)] = *number;
    }
    const std::optional<Scale> scale = scaleOf(numbers, isRgb);
    if (!scale)
        return {};
    const double full = *scale == Scale::Percent ? 100.0
                        : *scale == Scale::Bytes ? double(byteMax)
                                                 : 1.0;
    return ZelColor(ZelColor::Space::RGB, clamped(numbers[0].value / full),
                    clamped(numbers[1].value / full), clamped(numbers[2].value / full));
}

/// What stands in the brackets of rgb() or rgba(); null for other texts.
QString rgbArguments(const QString &text)
{
    static const QRegularExpression call(QStringLiteral("^rgba?\\s*\\(([^()]*)\\)$"));
    return call.match(text).captured(1);
}

std::optional<ZelColor> readName(const QString &name)
{
    // Newer than the names that Qt knows.
    if (name == QLatin1String("rebeccapurple"))
        return fromBytes(0x66, 0x33, 0x99);
    const bool isWord =
        std::all_of(name.begin(), name.end(), [](QChar c) { return c >= u'a' && c <= u'z'; });
    if (!isWord || name == QLatin1String("transparent") || !QColor::isValidColor(name))
        return {};
    const QColor color(name);
    return fromBytes(color.red(), color.green(), color.blue());
}

} // namespace

QString ZelColorText::hex(const ZelColor &color)
{
    const auto [red, green, blue] = bytes(color);
    return QStringLiteral("#%1%2%3")
        .arg(red, 2, 16, QLatin1Char('0'))
        .arg(green, 2, 16, QLatin1Char('0'))
        .arg(blue, 2, 16, QLatin1Char('0'));
}

QString ZelColorText::rgb(const ZelColor &color)
{
    const auto [red, green, blue] = bytes(color);
    return QStringLiteral("rgb(%1, %2, %3)").arg(red).arg(green).arg(blue);
}

QString ZelColorText::floats(const ZelColor &color)
{
    constexpr int decimals = 4;
    QStringList texts;
    for (const float channel : color.toRGB())
        texts.append(QString::number(double(clamped(double(channel))), 'f', decimals));
    return texts.join(QStringLiteral(", "));
}

std::optional<ZelColor> ZelColorText::read(const QString &text)
{
    QString plain = text.trimmed().toLower();
    if (plain.endsWith(u';'))
        plain = plain.chopped(1).trimmed();
    if (plain.isEmpty() || plain.size() > longestText)
        return {};
    if (plain.startsWith(u'#'))
        return readHex(QStringView(plain).mid(1).trimmed(), true);
    if (plain.startsWith(QLatin1String("0x")))
        return readHex(QStringView(plain).mid(2), false);
    if (const QString arguments = rgbArguments(plain); !arguments.isEmpty())
        return readNumbers(arguments, true);
    if (const auto color = readHex(plain, false))
        return color;
    if (const auto color = readName(plain))
        return color;
    return readNumbers(plain, false);
}
