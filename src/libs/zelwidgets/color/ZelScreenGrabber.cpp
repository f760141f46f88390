#include "color/ZelScreenGrabber.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

namespace {

std::unique_ptr<ZelScreenGrabber> &current()
{
    static std::unique_ptr<ZelScreenGrabber> grabber;
    return grabber;
}

} // namespace

ZelScreenGrabber::~ZelScreenGrabber() = default;

bool ZelScreenGrabber::canGrab() const
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

bool ZelScreenGrabber::seesOwnWindowsOnly() const
{
    return QGuiApplication::platformName() == QLatin1String("xcb") &&
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QImage ZelScreenGrabber::grab(QScreen *screen, const QRect &region) const
{
    if (!screen || region.isEmpty())
        return {};
    return screen->grabWindow(0, region.x(), region.y(), region.width(), region.height()).toImage();
}

ZelScreenGrabber &ZelScreenGrabber::instance()
{
    if (!current())
        current() = std::make_unique<ZelScreenGrabber>();
    return *current();
}

void ZelScreenGrabber::setInstance(std::unique_ptr<ZelScreenGrabber> grabber)
{
    current() = std::move(grabber);
}
