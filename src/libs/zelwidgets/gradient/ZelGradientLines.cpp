#include "gradient/ZelGradientLines.h"

#include <QCoreApplication>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ZelGradientLines", text);
}

bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

template <typename Number>
bool parse(QByteArrayView word, Number &value)
{
    const auto [end, fault] = std::from_chars(word.begin(), word.end(), value);
    return fault == std::errc() && end == word.end();
}

} // namespace

ZelGradientLines::ZelGradientLines(QByteArrayView text)
    : rest_(text)
{}

bool ZelGradientLines::nextLine()
{
    while (!rest_.isEmpty()) {
        const qsizetype end = rest_.indexOf('\n');
        const qsizetype length = end < 0 ? rest_.size() : end;
        line_ = rest_.first(length).trimmed();
        rest_ = rest_.sliced(std::min(length + 1, rest_.size()));
        ++lineNumber_;
        if (!line_.isEmpty())
            return true;
    }
    line_ = {};
    return false;
}

QByteArrayView ZelGradientLines::word()
{
    const auto end = std::find_if(line_.begin(), line_.end(), isBlank);
    const QByteArrayView word = line_.first(end - line_.begin());
    line_ = line_.sliced(word.size()).trimmed();
    return word;
}

bool ZelGradientLines::number(float &value, float least, float most)
{
    const QByteArrayView found = word();
    float read = 0.0f;
    if (!parse(found, read) || !std::isfinite(read))
        return fail(tr("a number"), found);
    if (read < least || read > most)
        return fail(tr("a number from %1 to %2").arg(double(least)).arg(double(most)), found);
    value = read;
    return true;
}

bool ZelGradientLines::number(int &value, int least, int most)
{
    const QByteArrayView found = word();
    int read = 0;
    if (!parse(found, read) || read < least || read > most)
        return fail(tr("a whole number from %1 to %2").arg(least).arg(most), found);
    value = read;
    return true;
}

bool ZelGradientLines::lineEnds()
{
    return line_.isEmpty() || fail(tr("the end of the line"), line_);
}

bool ZelGradientLines::fail(const QString &expected, QByteArrayView found)
{
    constexpr qsizetype longest = 40;
    if (!error_.isEmpty())
        return false;
    error_ = found.isEmpty()
                 ? tr("Line %1: %2 expected.").arg(lineNumber_).arg(expected)
                 : tr("Line %1: %2 expected, found \"%3\".")
                       .arg(QString::number(lineNumber_), expected,
                            QString::fromUtf8(found.first(std::min(found.size(), longest))));
    return false;
}
