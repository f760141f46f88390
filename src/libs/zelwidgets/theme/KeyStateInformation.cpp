#include "KeyStateInformation.h"

#include "GlobalEventFilter.h"

#include <QKeyEvent>

bool KeyStateInformation::isKeyDown(int key)
{
    return GlobalEventFilter::instance()->isKeyDown(key);
}

bool KeyStateInformation::isTrackPadTouched()
{
    return GlobalEventFilter::instance()->isTrackPadTouched();
}

std::unique_ptr<QKeyEvent> KeyStateInformation::lastKeyPress()
{
    return GlobalEventFilter::instance()->lastKeyPress();
}

std::unique_ptr<QKeyEvent> KeyStateInformation::lastKeyRelease()
{
    return GlobalEventFilter::instance()->lastKeyRelease();
}
