#pragma once

class QWidget;
class ZelDockWidget;

/// Holds the docks of a window still while one of them leaves the layout.
namespace ZelDockHold {

/// Fixes the width of every other visible docked dock of the same parent that lies at the left or
/// right, the height of one elsewhere, and lets go of them 25 milliseconds later. Does nothing if
/// the dock isn't docked and visible.
void holdOthers(ZelDockWidget *leaving);

/// Lets go of the width and of the height of every dock of the parent that can't change it.
void release(QWidget *parent);

} // namespace ZelDockHold
