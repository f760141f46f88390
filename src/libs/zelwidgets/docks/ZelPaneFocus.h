#pragma once

#include <functional>

class QKeyEvent;
class QMouseEvent;
class QTabBar;
class QWidget;

/// Takes the keyboard into a part of the interface.
namespace ZelPaneFocus {

using Filter = std::function<bool(const QWidget *)>;

/// The widget of the pane that had the focus last, else the first one that the Tab key reaches, in
/// a dock or a tab widget rather in what it shows than around it. With a filter, only one that it
/// lets through. Null if the pane has none.
QWidget *target(QWidget *pane, const Filter &filter = {});

/// Gives the focus to the target and activates its window; false if there is none.
bool enter(QWidget *pane, const Filter &filter = {});

/// Enters the pane once no menu is open any more: Qt doesn't notice while one is that another
/// window becomes the active one.
void enterAfterMenus(QWidget *pane);

/// True if the pane, or a widget inside it, has the focus; false without a pane.
bool isIn(const QWidget *pane);

/// True for the release of the left button on the tab in front: the end of a click. A tab that was
/// dragged away isn't under the pointer any more.
bool isClickOnCurrent(const QTabBar *bar, const QMouseEvent *release);

/// Opens the context menu of the widget with the focus if the event is Shift+F10, which not every
/// desktop turns into the Menu key; false for other keys.
bool openMenuByKey(QKeyEvent *event);

} // namespace ZelPaneFocus
