#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QGraphicsRectItem>

/// A rectangle that the user drags within its scene and that snaps to the corners and to the middle
/// of the top and bottom edges. With the keyboard focus, the arrow keys move it to the next allowed
/// position their way.
///
/// Its rectangle and its scene begin at (0, 0). Positions are numbers of one bit each: 1 free, 2
/// top left, 4 top centre, 8 top right, 16 bottom left, 32 bottom centre, 64 bottom right.
class ZELWIDGETS_EXPORT ZelGraphicsRectItem : public QGraphicsRectItem
{
public:
    explicit ZelGraphicsRectItem(QGraphicsItem *parent = nullptr);
    explicit ZelGraphicsRectItem(const QRectF &rect, QGraphicsItem *parent = nullptr);

    /// A mask of the positions that a drag may end at; all at first. The item stays free anywhere.
    void setAllowedSnapping(int allowed);
    /// What is kept free along the scene's edges, 2 pixels at first.
    void setBorder(int border);
    /// How far from its place at an edge, beyond the border, the item snaps; 30 pixels at first.
    void setSnappingDistance(int distance);

    /// The present position, bottom centre at first.
    int getSnap() const;
    /// Moves the item to its snap position, or, if it is free, into the scene. Done after drags and
    /// when the item is shown; to be called when the scene's size or the rectangle has changed.
    void confineToScene();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    bool snapToBottom(int distance);
    bool snapToTop(int distance);
    bool take(int snap);

    int snap_ = 32;
    int border_ = 2;
    int snappingDistance_ = 30;
    int allowedSnapping_ = 127;
};
