#pragma once

#include <QPoint>
#include <QPointF>

class QMouseEvent;
class QScreen;

/// Where the cursor is, in global coordinates, to the pixel of the device: a screen of a higher
/// pixel ratio has places between whole ones.
namespace ZelCursorPlace {

/// Qt rounds the places of a mouse event, but for that in the window, which has what is between the
/// pixels of the desktop. It can't be taken whole, for the window may have moved since.
QPointF of(const QMouseEvent *event);
/// The whole place that screens are asked by.
QPoint floored(const QPointF &place);
/// The screen at a place. Rounding may carry a place past the last pixel of all screens, which is
/// then meant. Null if there is none.
QScreen *screenAt(QPointF &place);

} // namespace ZelCursorPlace
