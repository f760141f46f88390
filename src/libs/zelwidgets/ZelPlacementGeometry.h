#pragma once

#include <QRect>
#include <QSize>

/// The arithmetic of window placement, apart from windows.
namespace ZelPlacementGeometry {

/// What decides about the size of a window that is to be centred.
struct WindowSizes
{
    QSize size;
    QSize hint;
    QSize minimum;
    bool isVisible = false;
    bool hasHandle = false;
    bool wasResized = false;
};

QSize sizeToCentre(const WindowSizes &window);
/// Top left of a rectangle of this size in the middle of the area.
QPoint topLeftInMiddle(QSize size, const QRect &area);
/// Size of a window that leaves room for its title bar.
QSize sizeInside(QSize size, const QRect &available, int titleBarHeight);
/// True if at least half of the window and the place above its top are inside the area.
bool isNicelyPlaced(const QRect &window, const QRect &available);

} // namespace ZelPlacementGeometry
