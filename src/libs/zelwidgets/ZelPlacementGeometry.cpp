#include "ZelPlacementGeometry.h"

namespace ZelPlacementGeometry {
namespace {

constexpr QSize leastUsefulSize(20, 10);
constexpr QSize fallbackSize(100, 50);
constexpr int frameWidth = 4;

bool isUseless(QSize size)
{
    return size.isEmpty() || size.width() < leastUsefulSize.width() ||
           size.height() < leastUsefulSize.height();
}

qint64 areaOf(const QRect &rectangle)
{
    return rectangle.isEmpty() ? 0 : qint64(rectangle.width()) * rectangle.height();
}

} // namespace

QSize sizeToCentre(const WindowSizes &window)
{
    QSize size = window.isVisible ? window.size : window.hint.expandedTo(window.minimum);
    if (isUseless(size))
        size = window.size.expandedTo(fallbackSize);
    if (window.hasHandle)
        return size;
    // Before the first show, size() is a default number unless somebody has chosen it.
    const QSize chosen = window.wasResized ? window.size : QSize(0, 0);
    const QSize wanted = chosen.expandedTo(window.hint).expandedTo(window.minimum);
    return isUseless(wanted) ? size : wanted;
}

QPoint topLeftInMiddle(QSize size, const QRect &area)
{
    return {area.left() + (area.width() - size.width()) / 2,
            area.top() + (area.height() - size.height()) / 2};
}

QSize sizeInside(QSize size, const QRect &available, int titleBarHeight)
{
    return size.boundedTo({available.width(), available.height() - frameWidth - titleBarHeight});
}

bool isNicelyPlaced(const QRect &window, const QRect &available)
{
    return areaOf(window) <= 2 * areaOf(window.intersected(available)) &&
           window.top() - frameWidth >= available.top();
}

} // namespace ZelPlacementGeometry
