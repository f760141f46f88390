#include "ZelSubRectSelector.h"

#include <QDebug>
#include <QRect>

#include <algorithm>

namespace {

// A picture with less room than the least size leaves no choice.
int bounded(int length, int room)
{
    return std::clamp(length, std::min(ZelSubRectSelector::minSize(), room), room);
}

QPoint asPoint(const QSize &size)
{
    return {size.width(), size.height()};
}

int truncated(float length)
{
    // Lengths beyond any picture, from ratios that are far from 1.
    constexpr float longest = 1 << 30;
    return int(std::min(length, longest));
}

} // namespace

ZelSubRectSelector::ZelSubRectSelector(const QSize &cropSize)
    : size_(cropSize)
    , aspectRatio_(1.0F)
{
    if (cropSize.isEmpty())
        qWarning() << "ZelSubRectSelector: the crop size is empty" << cropSize;
    else
        aspectRatio_ = float(cropSize.width()) / float(cropSize.height());
}

void ZelSubRectSelector::setImageSize(const QSize &size)
{
    imageSize_ = size.expandedTo({0, 0});
    isDragging_ = false;
    position_ = QPoint();
    if (size_ != imageSize_)
        startingRect();
}

void ZelSubRectSelector::startingRect()
{
    setSize(clampSizeToAspectRatio(imageSize_));
    const QSize rest = imageSize_ - size_;
    setPosition({rest.width() / 2, rest.height() / 2});
}

void ZelSubRectSelector::mousePress(const QPoint &point)
{
    if (mode_ == 0)
        mode_ = Move;
    positionAtPress_ = position_;
    pressPoint_ = point;
    sizeAtPress_ = size_;
    isDragging_ = true;
}

void ZelSubRectSelector::mouseMove(const QPoint &point)
{
    if (isDragging_)
        handleDrag(pressPoint_ - point);
    else
        handleHover(point);
}

void ZelSubRectSelector::mouseRelease()
{
    isDragging_ = false;
}

void ZelSubRectSelector::moveBy(const QPoint &distance)
{
    dragOnce(Move, -distance);
}

void ZelSubRectSelector::growBy(const QSize &distance)
{
    if (distance.width() != 0)
        dragOnce(Right, {-distance.width(), 0});
    if (distance.height() != 0)
        dragOnce(Bottom, {0, -distance.height()});
}

void ZelSubRectSelector::dragOnce(int mode, const QPoint &delta)
{
    if (isDragging_)
        return;
    const int hovered = mode_;
    mode_ = mode;
    mousePress(QPoint());
    handleDrag(delta);
    mouseRelease();
    mode_ = hovered;
}

void ZelSubRectSelector::handleHover(const QPoint &point)
{
    const int reach = interactionSize();
    const int strip = 2 * reach;
    const QPoint corner = position_ - QPoint(reach, reach);
    const QSize horizontal(size_.width() + strip, strip);
    const QSize vertical(strip, size_.height() + strip);
    mode_ = 0;
    if (QRect(corner, horizontal).contains(point))
        mode_ += Top;
    if (QRect(corner + QPoint(size_.width(), 0), vertical).contains(point))
        mode_ += Right;
    if (QRect(corner, vertical).contains(point))
        mode_ += Left;
    if (QRect(corner + QPoint(0, size_.height()), horizontal).contains(point))
        mode_ += Bottom;
    if (mode_ == 0)
        mode_ = Move;
}

// The strips of opposite edges overlap on a small rectangle; it can still be made larger then.
int ZelSubRectSelector::draggedEdges() const
{
    int edges = mode_ & ~Move;
    if (edges & Bottom)
        edges &= ~Top;
    if (edges & Right)
        edges &= ~Left;
    return edges;
}

void ZelSubRectSelector::handleDrag(const QPoint &delta)
{
    if (mode_ & Move) {
        setPosition(positionAtPress_ - delta);
    } else if (delta.isNull()) {
        // The ratio must not change what isn't dragged.
        setSize(sizeAtPress_);
        setPosition(positionAtPress_);
    } else {
        dragEdges(delta);
    }
}

void ZelSubRectSelector::dragEdges(const QPoint &delta)
{
    switch (draggedEdges()) {
    case Top | Left:
        return handleTopLeftMove(delta);
    case Top | Right:
        return handleTopRightMove(delta);
    case Top:
        return handleTopMove(delta);
    case Right:
        return handleRightMove(delta);
    case Left:
        return handleLeftMove(delta);
    case Bottom | Left:
        return handleBottomLeftMove(delta);
    case Bottom | Right:
        return handleBottomRightMove(delta);
    case Bottom:
        return handleBottomMove(delta);
    default:
        break;
    }
}

QSize ZelSubRectSelector::roomToTopLeft() const
{
    return {positionAtPress_.x() + sizeAtPress_.width(),
            positionAtPress_.y() + sizeAtPress_.height()};
}

QSize ZelSubRectSelector::roomToBottomRight() const
{
    return {imageSize_.width() - positionAtPress_.x(), imageSize_.height() - positionAtPress_.y()};
}

void ZelSubRectSelector::handleTopLeftMove(const QPoint &delta)
{
    const QSize room = roomToTopLeft();
    adjustSizeAndPosition([this] { return positionAtPress_ + asPoint(sizeAtPress_ - size_); },
                          {bounded(sizeAtPress_.width() + delta.x(), room.width()),
                           bounded(sizeAtPress_.height() + delta.y(), room.height())});
}

void ZelSubRectSelector::handleTopRightMove(const QPoint &delta)
{
    adjustSizeAndPosition(
        [this] { return positionAtPress_ + QPoint(0, sizeAtPress_.height() - size_.height()); },
        {bounded(sizeAtPress_.width() - delta.x(), roomToBottomRight().width()),
         bounded(sizeAtPress_.height() + delta.y(), roomToTopLeft().height())});
}

void ZelSubRectSelector::handleBottomLeftMove(const QPoint &delta)
{
    adjustSizeAndPosition(
        [this] { return positionAtPress_ + QPoint(sizeAtPress_.width() - size_.width(), 0); },
        {bounded(sizeAtPress_.width() + delta.x(), roomToTopLeft().width()),
         bounded(sizeAtPress_.height() - delta.y(), roomToBottomRight().height())});
}

void ZelSubRectSelector::handleBottomRightMove(const QPoint &delta)
{
    const QSize room = roomToBottomRight();
    adjustSizeAndPosition([this] { return positionAtPress_; },
                          {bounded(sizeAtPress_.width() - delta.x(), room.width()),
                           bounded(sizeAtPress_.height() - delta.y(), room.height())});
}

// The single edges offer all the room that the other direction has; the ratio cuts it.

void ZelSubRectSelector::handleTopMove(const QPoint &delta)
{
    adjustSizeAndPosition(
        [this] { return positionAtPress_ + QPoint(0, sizeAtPress_.height() - size_.height()); },
        {roomToBottomRight().width(),
         bounded(sizeAtPress_.height() + delta.y(), roomToTopLeft().height())});
}

void ZelSubRectSelector::handleBottomMove(const QPoint &delta)
{
    const QSize room = roomToBottomRight();
    adjustSizeAndPosition(
        [this] { return positionAtPress_; },
        {room.width(), bounded(sizeAtPress_.height() - delta.y(), room.height())});
}

void ZelSubRectSelector::handleRightMove(const QPoint &delta)
{
    const QSize room = roomToBottomRight();
    adjustSizeAndPosition([this] { return positionAtPress_; },
                          {bounded(sizeAtPress_.width() - delta.x(), room.width()), room.height()});
}

void ZelSubRectSelector::handleLeftMove(const QPoint &delta)
{
    adjustSizeAndPosition(
        [this] { return positionAtPress_ + QPoint(sizeAtPress_.width() - size_.width(), 0); },
        {bounded(sizeAtPress_.width() + delta.x(), roomToTopLeft().width()),
         roomToBottomRight().height()});
}

void ZelSubRectSelector::adjustSizeAndPosition(const std::function<QPoint()> &position,
                                               const QSize &size)
{
    setSize(clampSizeToAspectRatio(size));
    setPosition(position());
}

QSize ZelSubRectSelector::clampSizeToAspectRatio(const QSize &size) const
{
    const int width = truncated(float(size.height()) * aspectRatio_);
    if (size.width() >= width)
        return {width, size.height()};
    return {size.width(), truncated(float(size.width()) / aspectRatio_)};
}

void ZelSubRectSelector::setPosition(const QPoint &position)
{
    const QSize room = (imageSize_ - size_).expandedTo({0, 0});
    position_ = {std::clamp(position.x(), 0, room.width()),
                 std::clamp(position.y(), 0, room.height())};
}

void ZelSubRectSelector::setSize(const QSize &size)
{
    // A ratio that is far from 1 would leave nothing of a thin picture.
    size_ = size.expandedTo({1, 1}).boundedTo(imageSize_);
}

Qt::CursorShape ZelSubRectSelector::cursorShape() const
{
    if (mode_ & Move)
        return Qt::ClosedHandCursor;
    switch (draggedEdges()) {
    case Top | Left:
    case Bottom | Right:
        return Qt::SizeFDiagCursor;
    case Top | Right:
    case Bottom | Left:
        return Qt::SizeBDiagCursor;
    case Top:
    case Bottom:
        return Qt::SizeVerCursor;
    case Left:
    case Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::ArrowCursor;
    }
}
