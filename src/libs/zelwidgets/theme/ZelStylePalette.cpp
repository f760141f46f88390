#include "ZelStylePalette.h"

#include "ZelMarkedKeys.h"
#include "ZelPaletteSubstitution.h"

#include <QDebug>
#include <QStringBuilder>

#include <nlohmann/json.hpp>

namespace ZelStylePalette {
namespace {

const QLatin1String marker("// BEGIN STYLESHEET SECTION");
const QLatin1String fontRuleHead("QWidget{font-size    :");

} // namespace

Sections splitSections(const QString &text)
{
    const qsizetype position = text.indexOf(marker);
    if (position < 0)
        return {QString(), text, false};
    return {text.left(position), text.mid(position + marker.size()), true};
}

QString withoutComments(const QString &text)
{
    const QLatin1String opening("/*");
    const QLatin1String closing("*/");
    QString result;
    result.reserve(text.size());
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype start = text.indexOf(opening, position);
        const qsizetype end = start < 0 ? -1 : text.indexOf(closing, start + opening.size());
        if (end < 0)
            break;
        result += QStringView(text).mid(position, start - position);
        position = end + closing.size();
    }
    return result += QStringView(text).mid(position);
}

void parseStrictly(const QString &json, Table &table)
{
    const auto root = nlohmann::json::parse(json.toStdString());
    for (const auto &[theme, colors] : root.get_ref<const nlohmann::json::object_t &>())
        table[theme] = colors.get<Colors>();
}

Table parse(const QString &section)
{
    Table table;
    try {
        parseStrictly(withoutComments(section).simplified(), table);
    } catch (const nlohmann::json::exception &error) {
        qCritical() << "Error in JSON Color Palette in stylesheet: " << error.what();
    }
    return table;
}

QString substitute(QString text, const Colors &colors)
{
    if (const auto marked = substituteMarkedKeys(text, colors))
        return *marked;
    for (const auto &[key, value] : colors) {
        if (!key.empty())
            text = substituteKey(text, QString::fromStdString(key), QString::fromStdString(value));
    }
    return text;
}

bool hasFontRule(const QString &sheet)
{
    return sheet.startsWith(fontRuleHead);
}

QString withFontRule(const QString &sheet, int points)
{
    QStringView rest(sheet);
    if (hasFontRule(sheet)) {
        const qsizetype lineEnd = rest.indexOf(QLatin1Char('\n'));
        rest = lineEnd < 0 ? QStringView() : rest.mid(lineEnd + 1);
    }
    return fontRuleHead % QLatin1Char(' ') % QString::number(points) % QLatin1String("pt; } \n") %
           rest;
}

} // namespace ZelStylePalette
