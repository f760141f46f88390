#include "ZelTabDragRules.h"

#include <algorithm>
#include <cstdlib>

namespace ZelTabDragRules {
namespace {

constexpr int tearOutFactor = 4;

int distanceOf(const QRect &bar, const QPoint &pointer)
{
    const int vertical =
        std::min(std::abs(pointer.y() - bar.top()), std::abs(pointer.y() - bar.bottom()));
    if (pointer.x() >= bar.left() && pointer.x() <= bar.right())
        return vertical;
    return vertical +
           std::min(std::abs(pointer.x() - bar.left()), std::abs(pointer.x() - bar.right()));
}

/// The rectangles as they stand in the mirror at x = 0.
QList<QRect> mirrored(QList<QRect> tabs)
{
    for (QRect &tab : tabs)
        tab.moveLeft(-tab.right());
    return tabs;
}

int tabAt(const QList<QRect> &tabs, int x)
{
    const auto last = std::find_if(tabs.cbegin(), tabs.cend(),
                                   [x](const QRect &tab) { return x <= tab.right(); });
    return last == tabs.cend() ? int(tabs.size()) - 1 : int(last - tabs.cbegin());
}

} // namespace

bool isTornOut(const QRect &bar, const QPoint &pointer, int startDragDistance)
{
    return !bar.contains(pointer) && distanceOf(bar, pointer) >= tearOutFactor * startDragDistance;
}

int reorderTarget(const QList<QRect> &tabs, int from, int x, Qt::LayoutDirection direction)
{
    if (tabs.isEmpty())
        return from;
    if (direction == Qt::RightToLeft)
        return reorderTarget(mirrored(tabs), from, -x);
    int target = tabAt(tabs, x);
    if (x > tabs[target].center().x())
        ++target;
    if (target > from)
        --target;
    return std::min(target, int(tabs.size()) - 1);
}

} // namespace ZelTabDragRules
