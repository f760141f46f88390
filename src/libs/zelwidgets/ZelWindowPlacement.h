#pragma once

#include <ZelWidgets/zelwidgets_export.h>

class QScreen;
class QWidget;

/// The screen that the widget is on, or is most likely to come up on. Null, with a warning, only
/// if there is no screen at all.
ZELWIDGETS_EXPORT QScreen *widgetScreen(QWidget *widget);

/// Raises a window and puts it in the middle of the screen's available area; without a screen, of
/// the one that it is on. A window that isn't visible takes its size hint, one without a usable
/// hint at least 100 by 50 pixels; no window is made larger than the area.
ZELWIDGETS_EXPORT void centerWidgetOnScreen(QWidget *widget, QScreen *screen);

/// Cuts a window down to its screen and, if more than half of it or its title bar is out of sight,
/// centres it on its parent or on the screen, with a warning. Leaves full-screen and maximised
/// windows alone.
ZELWIDGETS_EXPORT void ensureNiceWidgetPosition(QWidget *widget);
