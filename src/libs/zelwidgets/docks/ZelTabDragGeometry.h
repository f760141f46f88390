#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <Qt>

/// What a drag of a tab comes to, apart from widgets.
namespace ZelTabDragGeometry {

/// How far the pointer is from the corners of the tab bar: up and down only while it is above or
/// below the bar, else along both axes.
int distanceFromBar(const QRect &bar, QPoint pointer);

/// True if the pointer has left the bar far enough to take the tab with it. Both are global.
bool isTornOut(const QRect &bar, QPoint pointer, int startDragDistance);

/// The index to which a tab moves when it is dropped at x; -1 without tabs. Drops beyond the first
/// and the last tab are drops on these.
int reorderTarget(const QList<QRect> &tabs, int from, int x,
                  Qt::LayoutDirection direction = Qt::LeftToRight);

} // namespace ZelTabDragGeometry
