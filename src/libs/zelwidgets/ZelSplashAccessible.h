#pragma once

class ZelSplashWindow;

/// What assistive technology sees of a splash window: a progress bar named by the status.
namespace ZelSplashAccessible {

/// Makes splash windows show themselves so; costs nothing but for the first time.
void installFactory();
/// Tells the present progress.
void announceProgress(ZelSplashWindow *window);

} // namespace ZelSplashAccessible
