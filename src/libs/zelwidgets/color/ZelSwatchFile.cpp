#include "color/ZelSwatchFile.h"

#include "color/ZelColorConversion.h"
#include "color/ZelGplPalette.h"

#include <ZelCore/ZelGammaPolicy>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr qint64 largestFile = 16 * 1024 * 1024;

QString problemText(const char *text, const QString &fileName, const QString &reason = QString())
{
    const QString shown = QCoreApplication::translate("ZelColorSwatchListView", text)
                              .arg(QFileInfo(fileName).fileName());
    return reason.isEmpty() ? shown : shown + u' ' + reason;
}

ZelColor fromShown(const QColor &color, const QString &name)
{
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    const ZelColor read = fromQColor(color, name);
    return policy->isGammaCorrectionEnabled() ? policy->inverseGammaCorrect(read) : read;
}

} // namespace

ZelSwatchFile::Result ZelSwatchFile::read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{},
                problemText(QT_TRANSLATE_NOOP("ZelColorSwatchListView", "%1 can't be read."),
                            fileName, file.errorString())};
    }
    const QByteArray text = file.read(largestFile + 1);
    const std::optional<ZelGplPalette> palette =
        text.size() > largestFile ? std::nullopt : ZelGplPalette::read(text);
    if (!palette || palette->entries.isEmpty()) {
        return {{},
                problemText(
                    QT_TRANSLATE_NOOP("ZelColorSwatchListView", "%1 isn't a palette with colors."),
                    fileName)};
    }
    Result result;
    result.colors.reserve(std::size_t(palette->entries.size()));
    for (const auto &[color, name] : palette->entries)
        result.colors.push_back(fromShown(color, name));
    return result;
}

QString ZelSwatchFile::write(const QString &fileName, const std::vector<ZelColor> &colors)
{
    ZelGplPalette palette;
    palette.title = QFileInfo(fileName).completeBaseName();
    palette.entries.reserve(qsizetype(colors.size()));
    for (const ZelColor &color : colors)
        palette.entries.append({toDisplayQColor(color), QString::fromStdString(color.name())});
    const QByteArray text = palette.write();
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return {};
    return problemText(QT_TRANSLATE_NOOP("ZelColorSwatchListView", "%1 can't be written."),
                       fileName, file.errorString());
}
