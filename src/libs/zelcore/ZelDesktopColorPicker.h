#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>

#include <functional>
#include <memory>

class QColor;
class QObject;

/// Lets the desktop ask the user for a colour on the screen, where programs can't see it: by the
/// desktop portal on the D-Bus session bus. Nothing is written to the log. For the GUI thread.
class ZELCORE_EXPORT ZelDesktopColorPicker
{
public:
    using Answer = std::function<void(const QColor &)>;

    virtual ~ZelDesktopColorPicker();

    /// Whether the desktop offers it, as far as can be told before the first pick.
    virtual bool isAvailable() = 0;
    /// Asks and returns at once. The answer comes once, while the context lives; the colour is
    /// invalid if the user cancelled or it didn't work. The window is the portal's name of the one
    /// that asks, or empty. Another pick ends the one that is under way.
    virtual void pick(const QString &window, QObject *context, const Answer &answer) = 0;

    static ZelDesktopColorPicker &instance();
    /// Puts another picker in place, for tests; null brings the system's back.
    static void setInstance(std::unique_ptr<ZelDesktopColorPicker> picker);
};
