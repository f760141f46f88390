#pragma once

#include <ZelWidgets/zelwidgets_export.h>

class QWidget;

/// Puts a widget with all that is in it behind another one of the same window in the order in which
/// the Tab key reaches them. The parts keep their order among each other. For a panel that is made,
/// or comes into the window, after its surroundings: without it the panel would be reached last.
/// Does nothing if the widgets are in different windows, if the first one holds the second, or if
/// the second takes no focus.
ZELWIDGETS_EXPORT void placeInTabOrder(QWidget *widget, QWidget *behind);
