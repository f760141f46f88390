#include "ZelGlobalIconCache.h"

#include <atomic>

namespace {
std::atomic<bool> darkThemeInForce = false;
}

bool ZelGlobalIconCache::darkTheme()
{
    return darkThemeInForce;
}

void ZelGlobalIconCache::setDarkTheme(bool dark)
{
    darkThemeInForce = dark;
}
