#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPoint>
#include <QSize>
#include <Qt>

#include <functional>

/// A rectangle of a fixed aspect ratio inside a picture, moved and resized by mouse positions in
/// pixels of the picture. Geometry alone, without a widget.
///
/// The rectangle never leaves the picture. A drag of an edge or a corner leaves the opposite one
/// where it is; an edge takes the other direction along, to the right or down.
class ZELWIDGETS_EXPORT ZelSubRectSelector
{
public:
    /// The crop size gives the aspect ratio. An empty one is reported and counts as a square.
    explicit ZelSubRectSelector(const QSize &cropSize);

    /// Puts the largest rectangle of the ratio in the middle of a picture of this size. A picture
    /// that is as large as the rectangle, as after a cut, is taken whole.
    void setImageSize(const QSize &size);

    /// Begins a drag of what the last move without drag hovered; a move without such.
    void mousePress(const QPoint &point);
    /// Drags, or finds out what a press would drag.
    void mouseMove(const QPoint &point);
    void mouseRelease();

    /// Moves the rectangle, as far as the picture goes; nothing while it is dragged.
    void moveBy(const QPoint &distance);
    /// Moves the right and the lower edge, one after the other; nothing while it is dragged.
    void growBy(const QSize &distance);

    QPoint position() const { return position_; }
    QSize cropSize() const { return size_; }
    bool isDragging() const { return isDragging_; }
    /// What a drag does; Qt::ArrowCursor before the first move or press.
    Qt::CursorShape cursorShape() const;

    /// How near to an edge a press drags it, and the least size in a direction that the user can
    /// set. The ratio may make the other direction smaller.
    static int interactionSize() { return 5; }
    static int minSize() { return 10; }

private:
    enum ModeBit : int { Move = 1, Top = 2, Right = 4, Left = 8, Bottom = 16 };

    void handleHover(const QPoint &point);
    void handleDrag(const QPoint &delta);
    void handleTopLeftMove(const QPoint &delta);
    void handleTopRightMove(const QPoint &delta);
    void handleTopMove(const QPoint &delta);
    void handleRightMove(const QPoint &delta);
    void handleLeftMove(const QPoint &delta);
    void handleBottomLeftMove(const QPoint &delta);
    void handleBottomRightMove(const QPoint &delta);
    void handleBottomMove(const QPoint &delta);
    void dragEdges(const QPoint &delta);
    void dragOnce(int mode, const QPoint &delta);
    /// Where the edges that are dragged can go at most, as sizes of the rectangle.
    QSize roomToTopLeft() const;
    QSize roomToBottomRight() const;
    /// Takes the size, cut to the ratio, and then the position that results.
    void adjustSizeAndPosition(const std::function<QPoint()> &position, const QSize &size);
    QSize clampSizeToAspectRatio(const QSize &size) const;
    void setPosition(const QPoint &position);
    void setSize(const QSize &size);
    void startingRect();
    int draggedEdges() const;

    QSize imageSize_;
    int mode_ = 0;
    bool isDragging_ = false;
    QPoint position_;
    QPoint positionAtPress_;
    QPoint pressPoint_;
    QSize size_;
    QSize sizeAtPress_;
    float aspectRatio_;
};
