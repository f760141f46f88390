#pragma once

#include "curve/ZelCurveViewMath.h"

#include <ZelCore/ZelAxisSnapping>
#include <ZelCore/ZelCurvePointHandle>
#include <ZelWidgets/ZelCurveGraphicsView>

#include <QElapsedTimer>
#include <QTimer>

#include <array>
#include <optional>
#include <variant>

/// How a view stretches its axes.
class ZelCurveGraphicsView::ViewTransform : public ZelCurveModel::ViewTransform
{
public:
    explicit ViewTransform(const QTransform &transform);

    QPointF operator()(QPointF direction, QPointF length) const override;

private:
    QTransform transform_;
};

/// A marker that follows the cursor, from the press of the button to its release.
class ZelCurveGraphicsView::VertexDrag
{
public:
    VertexDrag(ZelCurveGraphicsView *view, const ZelCurvePointHandle &point, QPoint press);
    ~VertexDrag();
    Q_DISABLE_COPY_MOVE(VertexDrag)

    /// The cursor is at this pixel.
    void move(QPoint position, Qt::KeyboardModifiers modifiers);
    /// Puts the vertex back to where it was.
    void restore();

private:
    struct AutoScroller
    {
        ZelCurveViewMath::AutoScroll scroll;
        QElapsedTimer elapsed;
        /// A child of the view; it may be running the move that ends it.
        QPointer<QTimer> timer;
    };

    void moveVertex(QPoint position, bool isAxisHeld);
    void holdAxis(QPoint position);
    void startScrolling();
    void stopScrolling();
    void scroll();
    QPointF autoScrolled(QPointF point);

    QPointer<ZelCurveGraphicsView> view_;
    ZelCurvePointHandle point_;
    QPointF offset_;
    std::optional<ZelAxisSnapping> snapping_;
    QPointF snapOrigin_;
    std::unique_ptr<AutoScroller> scroller_;
    /// Position and tangents as they were.
    std::array<QVariant, 3> start_;
};

/// What the held left button does: nothing, pan or drag a marker.
struct ZelCurveGraphicsView::DragState
{
    struct Pan
    {
    };

    std::variant<std::monostate, Pan, std::unique_ptr<VertexDrag>> state;
};
