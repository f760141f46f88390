#include "splitTrailingNumber.h"

namespace {

constexpr qsizetype maximumDigits = 9;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

ZelTrailingNumber splitTrailingNumber(const QString &text)
{
    qsizetype start = text.size();
    while (start > 0 && text.size() - start < maximumDigits && isDigit(text[start - 1]))
        --start;
    while (start + 1 < text.size() && text[start] == u'0')
        ++start;
    if (start == text.size())
        return {text, std::nullopt};
    return {text.left(start), QStringView(text).mid(start).toInt()};
}
