#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <memory>

class QKeyEvent;

/// What the application's event filter knows of keys and track pad. Needs an application object.
/// Keys that go down or up while a style sheet goes in are not seen.
class ZELWIDGETS_EXPORT KeyStateInformation
{
public:
    KeyStateInformation() = delete;

    /// True if the key (Qt::Key) was pressed and not released since.
    static bool isKeyDown(int key);
    static bool isTrackPadTouched();
    /// A copy of the last press of a key that is no modifier; of type QEvent::None, with key 0, if
    /// there was none yet.
    static std::unique_ptr<QKeyEvent> lastKeyPress();
    /// A copy of the last release of any key; of type QEvent::None if there was none yet.
    static std::unique_ptr<QKeyEvent> lastKeyRelease();
};
