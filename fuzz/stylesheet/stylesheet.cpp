// Whatever a `.style` file holds gives a sheet for each of its themes, and the font rule of a
// finished sheet can be exchanged without a change of the rest.

#include "theme/StyleSheetErrorLocator.h"
#include "theme/ZelStylePalette.h"

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

void checkFinishedSheet(const QString &sheet)
{
    const QString finished = ZelStylePalette::withFontRule(sheet, 9);
    require(ZelStylePalette::hasFontRule(finished));
    require(ZelStylePalette::withFontRule(finished, 12) ==
            ZelStylePalette::withFontRule(sheet, 12));
}

void checkLocator(const QString &sheet)
{
    QStringList lines = sheet.split(QLatin1Char('\n'));
    const qsizetype count = lines.size();
    const auto place = StyleSheetErrorLocator::locate(
        lines, [](const QString &beginning, int) { return !beginning.contains(QLatin1Char('}')); });
    require(lines.size() == count);
    require(place.lastGoodLine <= place.errorLine && place.errorLine <= count);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qInstallMessageHandler(&ignoreMessage);
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    require(ZelStylePalette::withoutComments(text).size() <= text.size());

    const auto sections = ZelStylePalette::splitSections(text);
    checkFinishedSheet(sections.sheet);
    checkLocator(sections.sheet);
    if (!sections.hasPalette)
        return 0;
    for (const auto &[theme, colors] : ZelStylePalette::parse(sections.palette))
        checkFinishedSheet(ZelStylePalette::substitute(sections.sheet, colors));
    return 0;
}
