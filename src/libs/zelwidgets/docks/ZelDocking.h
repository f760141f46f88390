#pragma once

class QDockWidget;
class QMainWindow;
class QWidget;

/// What docks, torn-out tabs and the handler of workspaces share.
namespace ZelDocking {

/// The user's switch: the key "EnableDocking" of the group "ui", true if there is none.
bool isEnabled();

/// False where the desktop places the windows itself, so that none can be moved to a place.
bool hasGlobalPositions();

/// The nearest main window that the widget is in; null if there is none.
QMainWindow *mainWindowOf(QWidget *widget);

/// True for a visible dock that no other one stacked on it covers; Qt keeps covered ones outside of
/// their window.
bool isInFront(const QDockWidget *dock);

/// Lets a drag move one dock alone, also out of a floating group that is dragged as one otherwise.
/// Does nothing without a window.
void suspendGroupedDragging(QMainWindow *window);
/// Gives the window back what the first suspension took.
void resumeGroupedDragging(QMainWindow *window);

/// True while a RestoreScope lives: sizes and visibility of docks are then not the user's doing.
bool isInRestore();

class RestoreScope
{
public:
    RestoreScope();
    ~RestoreScope();
    RestoreScope(const RestoreScope &) = delete;
    RestoreScope &operator=(const RestoreScope &) = delete;
};

} // namespace ZelDocking
