#include "SheetsUnderTest.h"

#include "theme/ZelStylePalette.h"

#include <QFile>

namespace SheetsUnderTest {

QString styleFile()
{
    QFile file(QStringLiteral(ZEL_SOURCE_DIR "/src/apps/gallery/resources/res/zelmora.style"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("can't read the gallery's style file");
    return QString::fromUtf8(file.readAll());
}

QString finished(const QString &theme)
{
    const auto sections = ZelStylePalette::splitSections(styleFile());
    const auto palette = ZelStylePalette::parse(sections.palette);
    return ZelStylePalette::withFontRule(
        ZelStylePalette::substitute(sections.sheet, palette.at(theme.toStdString())), 9);
}

} // namespace SheetsUnderTest
