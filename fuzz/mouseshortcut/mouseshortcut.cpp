// Whatever stands for a mouse gesture is read, and what was read is written and read without loss.

#include "quiet.h"

#include <ZelWidgets/ZelMouseShortcut>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    catchMessages();
    const QString text = textOf(data, size);
    const ZelMouseShortcut gesture = ZelMouseShortcut::buildFromExportedString(text);
    require(gesture.getEvent() >= ZelMouseShortcut::LeftClick);
    require(gesture.getEvent() <= ZelMouseShortcut::None);

    const QString exported = gesture.exportToString();
    require(ZelMouseShortcut::isMouseShortcut(exported));
    catchMessages();
    const ZelMouseShortcut again = ZelMouseShortcut::buildFromExportedString(exported);
    require(caughtMessages().isEmpty());
    require(again.getEvent() == gesture.getEvent());
    require(again.getMouseModifiers() == gesture.getMouseModifiers());
    require(again.getKeyCombination().keyboardModifiers() ==
            gesture.getKeyCombination().keyboardModifiers());
    require(gesture.publicShortcutText().isEmpty() || gesture.getEvent() != ZelMouseShortcut::None);
    return 0;
}
