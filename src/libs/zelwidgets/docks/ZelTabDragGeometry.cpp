#include "docks/ZelTabDragGeometry.h"

#include <algorithm>

namespace {

constexpr int tearOutFactor = 4;

/// The tab at x; the last one that starts before it, so that beyond an end it is the tab there.
int tabAt(const QList<QRect> &tabs, int x, bool isReversed)
{
    int found = 0;
    for (int i = 1; i < int(tabs.size()); ++i) {
        if (isReversed ? x <= tabs[i].right() : x >= tabs[i].left())
            found = i;
    }
    return found;
}

} // namespace

int ZelTabDragGeometry::distanceFromBar(const QRect &bar, QPoint pointer)
{
    const auto toNearest = [](int at, int low, int high) {
        return std::min(std::abs(at - low), std::abs(at - high));
    };
    const bool isAboveOrBelow = pointer.x() >= bar.left() && pointer.x() <= bar.right();
    const int vertical = toNearest(pointer.y(), bar.top(), bar.bottom());
    return isAboveOrBelow ? vertical : vertical + toNearest(pointer.x(), bar.left(), bar.right());
}

bool ZelTabDragGeometry::isTornOut(const QRect &bar, QPoint pointer, int startDragDistance)
{
    return !bar.contains(pointer) &&
           distanceFromBar(bar, pointer) >= tearOutFactor * startDragDistance;
}

int ZelTabDragGeometry::reorderTarget(const QList<QRect> &tabs, int from, int x,
                                      Qt::LayoutDirection direction)
{
    if (tabs.isEmpty())
        return -1;
    const bool isReversed = direction == Qt::RightToLeft;
    int target = tabAt(tabs, x, isReversed);
    const int centre = tabs[target].center().x();
    if (isReversed ? x < centre : x > centre)
        ++target;
    if (target > from)
        --target;
    return std::clamp(target, 0, int(tabs.size()) - 1);
}
