#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <Qt>

/// What a drag of a tab means, apart from the widgets.
namespace ZelTabDragRules {

/// True if the pointer has left the tab bar far enough to take the tab with it: by at least four
/// times the distance that starts a drag. Above and below the bar the way is straight up or down,
/// elsewhere it goes along both axes from the nearest corner.
bool isTornOut(const QRect &bar, const QPoint &pointer, int startDragDistance);

/// Where the tab goes if it is let go at x; a point beyond the tabs counts as the outermost one.
/// The first tab is at the left, in a right-to-left layout at the right.
int reorderTarget(const QList<QRect> &tabs, int from, int x,
                  Qt::LayoutDirection direction = Qt::LeftToRight);

} // namespace ZelTabDragRules
