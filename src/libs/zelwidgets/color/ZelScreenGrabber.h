#pragma once

#include <QImage>
#include <QRect>

#include <memory>

class QScreen;

/// Takes pictures of the screens. For the GUI thread.
class ZelScreenGrabber
{
public:
    virtual ~ZelScreenGrabber();

    /// Whether the window system lets programs see the screens.
    virtual bool canGrab() const;
    /// Whether it is better to let the desktop pick, as programs see their own windows only.
    virtual bool seesOwnWindowsOnly() const;
    /// The region counts from the top left of the screen, in device-independent pixels. Null if
    /// there is nothing to be had.
    virtual QImage grab(QScreen *screen, const QRect &region) const;

    static ZelScreenGrabber &instance();
    /// Puts another grabber in place, for tests; null brings the system's back.
    static void setInstance(std::unique_ptr<ZelScreenGrabber> grabber);
};
