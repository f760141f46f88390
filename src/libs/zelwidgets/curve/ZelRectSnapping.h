#pragma once

#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Where a rectangle that the user drags in a scene comes to rest. The scene begins at (0, 0).
namespace ZelRectSnapping {

/// Positions to snap to, as bits of a mask of allowed ones.
enum Snap : int {
    Free = 1,
    TopLeft = 2,
    TopCenter = 4,
    TopRight = 8,
    BottomLeft = 16,
    BottomCenter = 32,
    BottomRight = 64
};

/// The allowed position at the scene's bottom that the rectangle, moved to pos, is closer to than
/// the distance; 0 if there is none. The middle goes before the corners.
int snapToBottom(const QRectF &rect, QPointF pos, QSizeF scene, int distance, int allowed);
/// The same at the scene's top.
int snapToTop(const QRectF &rect, QPointF pos, QSizeF scene, int distance, int allowed);

/// Where an item with these bounds belongs: at its snap position, or, if that is Free, at pos but
/// inside of the scene. The border is kept free along the scene's edges.
QPointF confined(int snap, const QRectF &bounds, QPointF pos, QSizeF scene, int border);

/// The nearest allowed position for an item at pos in a direction along one axis; 0 if there is
/// none that way.
int nextTowards(QPoint direction, const QRectF &bounds, QPointF pos, QSizeF scene, int border,
                int allowed);

} // namespace ZelRectSnapping
