#include "StyleFile.h"

#include <ZelCore/ZelGlobalIconCache>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace StyleFile {
namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

QMap<QString, Palette> palettes()
{
    const QString text = QString::fromUtf8(readFile(QStringLiteral(":/res/zelmora.style")));
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QString head = text.section(QStringLiteral("// BEGIN STYLESHEET SECTION"), 0, 0);
    head.remove(comment);

    QMap<QString, Palette> palettes;
    const QJsonObject themes = QJsonDocument::fromJson(head.toUtf8()).object();
    for (auto theme = themes.begin(); theme != themes.end(); ++theme) {
        const QJsonObject values = theme.value().toObject();
        for (auto value = values.begin(); value != values.end(); ++value)
            palettes[theme.key()].insert(value.key(), value.value().toString());
    }
    return palettes;
}

QString themeInForce()
{
    return ZelGlobalIconCache::darkTheme() ? QStringLiteral("Dark") : QStringLiteral("Light");
}

Palette paletteInForce()
{
    return palettes().value(themeInForce());
}

QList<ContrastPair> contrastPairs()
{
    const QJsonDocument document =
        QJsonDocument::fromJson(readFile(QStringLiteral(":/res/contrast_pairs.json")));
    QList<ContrastPair> pairs;
    const QJsonArray entries = document.array();
    for (const auto &entry : entries) {
        const QJsonObject pair = entry.toObject();
        pairs.append({pair.value(QLatin1String("text")).toString(),
                      pair.value(QLatin1String("on")).toString(),
                      pair.value(QLatin1String("least")).toDouble(4.5)});
    }
    return pairs;
}

QColor color(const QString &value)
{
    static const QRegularExpression rgba(QStringLiteral(
        "^rgba?\\(\\s*(\\d+)\\s*,\\s*(\\d+)\\s*,\\s*(\\d+)\\s*(?:,\\s*(\\d+)\\s*)?\\)$"));
    const auto match = rgba.match(value);
    if (match.hasMatch()) {
        const QString alpha = match.captured(4);
        return QColor(match.captured(1).toInt(), match.captured(2).toInt(),
                      match.captured(3).toInt(), alpha.isEmpty() ? 255 : alpha.toInt());
    }
    return QColor(value);
}

double contrast(const QColor &first, const QColor &second)
{
    const double one = luminance(first);
    const double other = luminance(second);
    const auto [darker, lighter] = std::minmax(one, other);
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace StyleFile
