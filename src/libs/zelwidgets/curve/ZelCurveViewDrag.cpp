#include "curve/ZelCurveViewDrag.h"

#include <ZelWidgets/ZelCurveView2Style>

#include <QApplication>
#include <QCursor>

#include <cmath>

namespace {

constexpr int scrollInterval = 30;
/// What counts as the time since the last step before the first one.
constexpr qint64 firstElapsed = 250;
constexpr std::array keys{ZelVertexData::Position, ZelVertexData::InTangent,
                          ZelVertexData::OutTangent};

bool isFinite(QPointF point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

ZelCurveGraphicsView::ViewTransform::ViewTransform(const QTransform &transform)
    : transform_(transform)
{}

QPointF ZelCurveGraphicsView::ViewTransform::operator()(QPointF direction, QPointF length) const
{
    return ZelCurveViewMath::turned(transform_, direction, length);
}

ZelCurveGraphicsView::VertexDrag::VertexDrag(ZelCurveGraphicsView *view,
                                             const ZelCurvePointHandle &point, QPoint press)
    : view_(view)
    , point_(point)
    , offset_(view->viewportTransform().map(point.data()) - press)
{
    for (std::size_t i = 0; i < keys.size(); ++i)
        start_[i] = point_.vertex().data(keys[i]);
}

ZelCurveGraphicsView::VertexDrag::~VertexDrag()
{
    stopScrolling();
}

void ZelCurveGraphicsView::VertexDrag::move(QPoint position, Qt::KeyboardModifiers modifiers)
{
    const bool isInside = view_->effectiveViewport().contains(position);
    if (isInside)
        stopScrolling();
    else if (!scroller_)
        startScrolling();
    if (!scroller_)
        moveVertex(position, modifiers.testFlag(Qt::ShiftModifier));
}

void ZelCurveGraphicsView::VertexDrag::restore()
{
    // Whoever hears of a write may end the drag.
    ZelVertexHandle vertex = point_.vertex();
    const std::array start = start_;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (start[i].isValid() || vertex.hasData(keys[i]))
            vertex.setData(keys[i], start[i]);
    }
}

void ZelCurveGraphicsView::VertexDrag::moveVertex(QPoint position, bool isAxisHeld)
{
    if (!point_.isValid())
        return;
    if (isAxisHeld && !snapping_)
        holdAxis(position);
    else if (!isAxisHeld)
        snapping_.reset();
    QPointF pixel = snapping_ ? snapping_->adjustPosition(position) : position;
    if (!snapping_ || point_.key() == ZelVertexData::Position)
        pixel += offset_;
    const QTransform toScene = view_->viewportTransform().inverted();
    QPointF point = toScene.map(pixel);
    if (scroller_)
        point = autoScrolled(point);
    if (!isFinite(point))
        return;
    const ViewTransform transform(view_->transform());
    // Whoever hears of the write may end the drag.
    ZelCurvePointHandle dragged = point_;
    dragged.setData(point, &transform);
}

/// A vertex keeps to the axes through the cursor, the end of a tangent to those through its vertex.
void ZelCurveGraphicsView::VertexDrag::holdAxis(QPoint position)
{
    QPoint origin = position;
    if (point_.key() != ZelVertexData::Position) {
        const ZelCurvePointHandle vertex(point_.vertex(), ZelVertexData::Position);
        origin = view_->mapFromScene(vertex.data());
    }
    snapping_.emplace(origin, QApplication::startDragDistance());
    snapOrigin_ = view_->mapToScene(origin);
}

void ZelCurveGraphicsView::VertexDrag::startScrolling()
{
    scroller_ = std::make_unique<AutoScroller>();
    const double stepY = view_->style_ ? view_->style_->autoScrollStepY : 0.0;
    scroller_->scroll = {view_->visibleArea_, view_->effectiveViewport(), stepY};
    scroller_->timer = new QTimer(view_);
    scroller_->timer->callOnTimeout(view_, [this] { scroll(); });
    scroller_->timer->start(scrollInterval);
}

void ZelCurveGraphicsView::VertexDrag::stopScrolling()
{
    if (scroller_ && scroller_->timer) {
        scroller_->timer->stop();
        scroller_->timer->deleteLater();
    }
    scroller_.reset();
}

void ZelCurveGraphicsView::VertexDrag::scroll()
{
    if (!view_->isValid())
        return;
    if (snapping_)
        snapping_->resetOrigin(view_->mapFromScene(snapOrigin_));
    const QPointer<ZelCurveGraphicsView> view = view_;
    const DragState *drag = view->dragState_.get();
    const QPoint cursor = view->viewport()->mapFromGlobal(QCursor::pos());
    moveVertex(cursor, QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
    // Whoever heard of the move may have ended the drag.
    if (!view || view->dragState_.get() != drag || !point_.isValid())
        return;
    view->announceMove();
    view->moveVisibleAreaToContain(point_.data());
}

QPointF ZelCurveGraphicsView::VertexDrag::autoScrolled(QPointF point)
{
    const qint64 elapsed =
        scroller_->elapsed.isValid() ? scroller_->elapsed.elapsed() : firstElapsed;
    scroller_->elapsed.start();
    const QPoint pixel = view_->mapFromScene(point);
    return scroller_->scroll.adjusted(point, pixel, view_->visibleArea_, elapsed);
}
