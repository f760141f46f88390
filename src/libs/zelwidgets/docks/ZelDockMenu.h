#pragma once

#include "docks/ZelDocking.h"

class QMenu;
class QPoint;
class QWidget;
class ZelDockWidget;
class ZelTextIconTabWidget;

/// What can be done to docks and tabs without a drag. Where windows can't be given a place, the
/// entries that would do it are off and say why.
namespace ZelDockMenu {

/// The context menu of the title bar, which belongs to the caller: float, dock at a side, go to
/// another screen, come back to the main window, put a torn-out page back. A dock that had the
/// focus keeps it.
QMenu *create(ZelDockWidget *dock, bool globalPositions = ZelDocking::hasGlobalPositions());

/// Opens the menu at the point, in global coordinates, or below the title bar.
void open(ZelDockWidget *dock, const QPoint &globalPoint);
void openBelowTitle(ZelDockWidget *dock);

/// Adds to the context menu of a tab bar what can be done to the tab of the page: tear it out,
/// dock it at a side, take it to another screen, move it among the tabs.
void addTabEntries(QMenu *menu, ZelTextIconTabWidget *tabs, QWidget *page,
                   bool globalPositions = ZelDocking::hasGlobalPositions());

} // namespace ZelDockMenu
