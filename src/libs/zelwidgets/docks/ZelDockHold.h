#pragma once

class QWidget;
class ZelDockWidget;

/// Holds the docks of a window still while one of them leaves the layout.
namespace ZelDockHold {

/// Fixes the width of every other visible docked dock of the same parent that lies at the left or
/// right, the height of one elsewhere, and lets go of them 25 milliseconds later. Does nothing if
/// the dock isn't docked and visible.
void holdOthers(ZelDockWidget *leaving);

/// True while docks of the main window are held and wait for the end of it.
bool isPending(const QWidget *window);

/// Ends at once what is held, if anything is: the layout takes its final form, and the docks that
/// were held can be resized. Docks that were fixed by others stay so.
void end(QWidget *window);

/// Lets go of the width and of the height of every dock of the parent that can't change it.
void release(QWidget *parent);

} // namespace ZelDockHold
