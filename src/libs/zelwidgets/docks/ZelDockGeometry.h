#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

/// The arithmetic of floating docks, apart from the widgets.
namespace ZelDockGeometry {

/// Bits of an edge drag.
enum Edge : int { NoEdge = 0, LeftEdge = 1, RightEdge = 2, TopEdge = 4, BottomEdge = 8 };

/// The edges that a point of the rectangle drags: the grips are 5 pixels wide, that of the bottom
/// 8. Left goes before right and top before bottom; a point outside drags nothing.
int edgesAt(const QRect &rectangle, const QPoint &point);

/// The cursor that shows what a drag of the edges does; the arrow for none.
Qt::CursorShape cursorFor(int edges);

/// The rectangle after the pointer went the way from where the drag began. The opposite sides
/// stay where they are. At the left and the top the size does not go below the minimum at the
/// press, at the right and the bottom not below the present one.
QRect dragged(const QRect &start, int edges, const QPoint &way, const QSize &minimumAtPress,
              const QSize &minimum);

/// Where a frame goes that is less than 10 pixels from the left, right or top side of the area.
QPoint snapped(const QRect &frame, const QRect &area);

} // namespace ZelDockGeometry
