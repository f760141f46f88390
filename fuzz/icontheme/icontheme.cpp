// Icon theme files: any text gives a table or a message, and a table answers every question.

#include "quiet.h"

#include "theme/IconColorThemeImpl.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    catchMessages();
    IconColorThemeImpl theme;
    const QString text = textOf(data, size);
    theme.parseAndBuildMap(text);
    const bool failed = !caughtMessages().isEmpty();
    require(caughtMessages().size() == (failed ? 2 : 0));
    require(!failed || theme.isNull());
    for (int mode = QIcon::Normal; mode <= QIcon::Selected; ++mode) {
        for (const int state : {QIcon::On, QIcon::Off}) {
            theme.colorFor(ColorKey(QStringLiteral("icon")), mode, state);
            theme.colorFor(ColorKey(QStringLiteral("icon_hover")), mode, state);
            theme.colorFor(ColorKey(text.left(20)), mode, state);
        }
    }
    return 0;
}
