#pragma once

#include <QLocale>
#include <QString>
#include <QValidator>

#include <optional>

/// Numbers as texts and back, and the arithmetic of a field that may not be zero; without widgets.
namespace ZelNumberText {

/// How a field writes its numbers.
struct Format
{
    int decimals = 3;
    /// Always this many decimals; otherwise numbers below 1 get as many more as they have zeros
    /// behind the point.
    bool decimalsIsAbsolute = true;
    bool stripTailingZeros = true;
};

/// The most decimals that a field takes: what the smallest double needs.
constexpr int maximumDecimals = 323;

/// The digits behind the decimal point of a typed text. A point in front of all else counts none.
int countDecimals(const QString &text, const QLocale &locale);
/// The decimals that a number of this size is written with.
int decimalsFor(double value, const Format &format);
/// Takes the zeros off the end of a text with a decimal point, and the point if nothing follows it.
/// A zero with a minus loses the minus.
QString stripEndingZeros(const QString &text, const QLocale &locale);
QString fromNumber(double value, const Format &format, const QLocale &locale);
/// The rule of the free-standing spin box: zeros at the end go whether or not there is a decimal
/// point, so it is for fields with decimals; with none, 100 becomes "1".
QString spinBoxText(double value, int decimals, const QLocale &locale);

/// The text as the locale reads it: locales that put invisible marks of direction around their
/// signs don't read them back.
QString readable(QString text, const QLocale &locale);
/// The same to a text that is being edited; the cursor stays where it was among the digits.
void makeReadable(QString &text, int &position, const QLocale &locale);
/// What stands around the number in a field, and the locale that it is written by.
struct Frame
{
    QString prefix;
    QString suffix;
    QLocale locale;
};

/// Whether the locale reads what is in the frame; group separators have to be in their places.
bool isNumber(QString text, const Frame &frame);

/// What a field thinks of a text, with the help of its base class. That one drops group separators
/// wherever they are, so that 1.5 would be 15 in German, or does not let them be typed at all:
/// here such a text can be typed, but it is no number.
template <typename Base>
QValidator::State validate(QString &text, int &position, const Frame &frame, Base &&base)
{
    makeReadable(text, position, frame.locale);
    const QString group = frame.locale.groupSeparator();
    QString bare = text;
    if (!group.isEmpty())
        bare.remove(group);
    const QValidator::State state = base(text, position);
    if (bare == text || state == QValidator::Intermediate)
        return state;
    if (state == QValidator::Acceptable)
        return isNumber(text, frame) ? state : QValidator::Intermediate;
    int end = static_cast<int>(bare.size());
    return base(bare, end) == QValidator::Invalid ? state : QValidator::Intermediate;
}

/// Below this a number counts as zero where zero is not allowed.
constexpr double smallestNonZero = 1e-6;
/// The number, or the nearest one that does not count as zero.
double keptFromZero(double value);
/// The steps to take so that the result does not count as zero; nothing if the step is so small
/// that one more would not get past zero.
std::optional<int> stepsPastZero(double value, double singleStep, int steps);

} // namespace ZelNumberText
