#include "color/ZelGplPalette.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

namespace {

// The first line of every such file.
constexpr QByteArrayView firstLine = "GIMP Palette";
constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";
constexpr QByteArrayView titleKey = "Name:";
constexpr int highest = 255;

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// The text up to the next of the marks, which is taken off the rest.
template <typename Mark>
QByteArrayView takeUntil(QByteArrayView &rest, Mark isMark)
{
    const auto end = std::find_if(rest.begin(), rest.end(), isMark);
    const QByteArrayView found(rest.begin(), end);
    rest = rest.sliced(std::min(found.size() + 1, rest.size()));
    return found;
}

QByteArrayView takeLine(QByteArrayView &text)
{
    return takeUntil(text, [](char character) { return character == '\n'; });
}

QString shown(QByteArrayView text)
{
    return QString::fromUtf8(text).simplified();
}

/// Three numbers and a name.
std::optional<ZelGplPalette::Entry> readEntry(QByteArrayView line)
{
    std::array<int, 3> channels;
    for (int &channel : channels) {
        while (!line.isEmpty() && isBlank(line.front()))
            line = line.sliced(1);
        bool isNumber = false;
        channel = takeUntil(line, isBlank).toByteArray().toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
        channel = std::clamp(channel, 0, highest);
    }
    return ZelGplPalette::Entry{QColor(channels[0], channels[1], channels[2]), shown(line)};
}

} // namespace

std::optional<ZelGplPalette> ZelGplPalette::read(const QByteArray &text)
{
    QByteArrayView rest(text);
    if (rest.startsWith(byteOrderMark))
        rest = rest.sliced(byteOrderMark.size());
    if (takeLine(rest).trimmed() != firstLine)
        return std::nullopt;
    ZelGplPalette palette;
    while (!rest.isEmpty()) {
        const QByteArrayView line = takeLine(rest).trimmed();
        if (line.startsWith(titleKey))
            palette.title = shown(line.sliced(titleKey.size()));
        else if (const std::optional<Entry> entry = readEntry(line))
            palette.entries.append(*entry);
    }
    return palette;
}

QByteArray ZelGplPalette::write() const
{
    QByteArray text = firstLine.toByteArray() + '\n';
    if (!title.isEmpty())
        text += titleKey.toByteArray() + ' ' + title.simplified().toUtf8() + '\n';
    text += "#\n";
    for (const auto &[color, name] : entries) {
        for (const int channel : {color.red(), color.green(), color.blue()})
            text += QByteArray::number(channel).rightJustified(3) + ' ';
        text.back() = '\t';
        text += name.simplified().toUtf8() + '\n';
    }
    return text;
}
