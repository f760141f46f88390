#pragma once

#include <QString>

class ZelGradient;
class ZelGradientDisplay;
class ZelGradientStop;

/// What keys, menus and buttons do to a gradient. Each emits the display's gradientChanged() after
/// an edit.
namespace ZelGradientCommands {

/// Position and value of a stop.
QString textOf(const ZelGradientStop &stop);

/// There is a selected stop, and two others will stay.
bool canRemoveSelected(const ZelGradient *gradient);
void removeSelected(ZelGradientDisplay *display);

void reverse(ZelGradientDisplay *display);
void distributeEvenly(ZelGradientDisplay *display);

void copy(const ZelGradientDisplay *display);
/// Whether the clipboard holds a text that begins as that of a gradient does.
bool canPaste();
/// A text that is none warns and changes nothing.
void paste(ZelGradientDisplay *display);

/// Asks for the position of the selected stop in percent.
void askForPosition(ZelGradientDisplay *display);

} // namespace ZelGradientCommands
