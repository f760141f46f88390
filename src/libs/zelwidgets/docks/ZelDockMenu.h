#pragma once

class QMenu;
class ZelDockWidget;

/// What can be done to a dock without a drag.
namespace ZelDockMenu {

/// The context menu of the title bar, which belongs to the caller: float, dock at a side, go to
/// another screen, come back to the main window, put a torn-out page back.
QMenu *create(ZelDockWidget *dock);

} // namespace ZelDockMenu
