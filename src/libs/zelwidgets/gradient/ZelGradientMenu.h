#pragma once

class QMenu;
class ZelGradientDisplay;

namespace ZelGradientMenu {

/// The context menu of the display, which owns it; it deletes itself when it closes.
QMenu *make(ZelGradientDisplay *display);

} // namespace ZelGradientMenu
