#include "ZelDockGeometry.h"

#include <algorithm>
#include <cstdlib>

namespace ZelDockGeometry {
namespace {

constexpr int gripWidth = 5;
constexpr int bottomGripWidth = 8;
constexpr int snapDistance = 10;

} // namespace

int edgesAt(const QRect &rectangle, const QPoint &point)
{
    if (!rectangle.contains(point))
        return NoEdge;
    int edges = NoEdge;
    if (point.x() - rectangle.left() < gripWidth)
        edges |= LeftEdge;
    else if (rectangle.right() - point.x() < gripWidth)
        edges |= RightEdge;
    if (point.y() - rectangle.top() < gripWidth)
        edges |= TopEdge;
    else if (rectangle.bottom() - point.y() < bottomGripWidth)
        edges |= BottomEdge;
    return edges;
}

Qt::CursorShape cursorFor(int edges)
{
    switch (edges) {
    case LeftEdge:
    case RightEdge:
        return Qt::SizeHorCursor;
    case TopEdge:
    case BottomEdge:
        return Qt::SizeVerCursor;
    case LeftEdge | TopEdge:
    case RightEdge | BottomEdge:
        return Qt::SizeFDiagCursor;
    case RightEdge | TopEdge:
    case LeftEdge | BottomEdge:
        return Qt::SizeBDiagCursor;
    default:
        return Qt::ArrowCursor;
    }
}

QRect dragged(const QRect &start, int edges, const QPoint &way, const QSize &minimumAtPress,
              const QSize &minimum)
{
    QRect result = start;
    if (edges & LeftEdge)
        result.setLeft(start.right() + 1 -
                       std::max(start.width() - way.x(), minimumAtPress.width()));
    else if (edges & RightEdge)
        result.setWidth(std::max(start.width() + way.x(), minimum.width()));
    if (edges & TopEdge)
        result.setTop(start.bottom() + 1 -
                      std::max(start.height() - way.y(), minimumAtPress.height()));
    else if (edges & BottomEdge)
        result.setHeight(std::max(start.height() + way.y(), minimum.height()));
    return result;
}

QPoint snapped(const QRect &frame, const QRect &area)
{
    QPoint position = frame.topLeft();
    const int atRight = area.x() + area.width() - frame.width();
    if (std::abs(area.x() - frame.x()) < snapDistance)
        position.setX(area.x());
    else if (std::abs(atRight - frame.x()) < snapDistance)
        position.setX(atRight);
    if (std::abs(area.y() - frame.y()) < snapDistance)
        position.setY(area.y());
    return position;
}

} // namespace ZelDockGeometry
