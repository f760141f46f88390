// Rewriting of documents: the prepared form gives what the plain one gives, messages included.

#include "quiet.h"

#include "theme/IconColorThemeImpl.h"
#include "theme/ThemedSvg.h"

#include <cstdint>

namespace {

const IconColorThemeImpl &theme()
{
    static const IconColorThemeImpl theme = [] {
        IconColorThemeImpl made;
        made.parseAndBuildMap(QStringLiteral(
            R"json([{"a": "#aa0000", "a_disabled": "red", "b": "#1", "b_hover": "rgba(1,2,3,0.25)",
                     "none": "", "odd": "x-->y<!--", "self": "#12", "tag": "!&replace_!0",
                     "e_selected": "#1#1", "at": "@z", "blank": " "}])json"));
        return made;
    }();
    return theme;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const int mode = data[0] % 4;
    const int state = data[0] / 4 % 2;
    const QString svg = textOf(data + 1, size - 1);
    const QString name = QStringLiteral("N");

    catchMessages();
    const QString plain = theme().mapSvgToTheme(svg, mode, state, name);
    const QStringList messages = caughtMessages();

    catchMessages();
    const QString prepared = theme().mapSvgToTheme(ThemedSvg(svg), mode, state, name);
    require(prepared == plain);
    require(caughtMessages() == messages);
    return 0;
}
