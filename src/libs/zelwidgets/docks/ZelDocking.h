#pragma once

class QMainWindow;
class QWidget;

/// What docks, torn-out tabs and the handler of workspaces share.
namespace ZelDocking {

/// The user's switch: the key "EnableDocking" of the group "ui", true if there is none.
bool isEnabled();

/// The nearest main window that the widget is in; null if there is none.
QMainWindow *mainWindowOf(QWidget *widget);

/// Lets the user drag a floating group of docks as one, or not.
void setGroupedDragging(QMainWindow *window, bool grouped);
bool hasGroupedDragging(const QMainWindow *window);

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
