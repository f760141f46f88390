#pragma once

#include "curve/ZelFixedLineWidthItem.h"

#include <ZelCore/ZelVertexData>
#include <ZelCore/ZelVertexHandle>

#include <QGraphicsItem>
#include <QObject>
#include <QPen>
#include <QPointer>

#include <array>
#include <memory>

struct ZelCurveView2Style;

/// Owns the items of one vertex in a scene: a marker for its position and, while it has them, for
/// the ends of its tangents, with lines to them.
///
/// It shows what the vertex says and never moves by itself.
class ZelCurveVertexItem : public QObject
{
    Q_OBJECT

public:
    class Anchor;
    class IMarker;
    class Marker;

    /// What the items show of the vertex.
    struct Points
    {
        QPointF position;
        QPointF in;
        QPointF out;
        bool hasPosition = false;
        bool hasIn = false;
        bool hasOut = false;

        /// To the last bit, unlike that of points.
        bool operator==(const Points &other) const;
    };

    /// What a model says of its vertex with this index.
    static Points points(const ZelCurveModel &model, int index);

    /// The style is not owned and outlives the item.
    ZelCurveVertexItem(const ZelVertexHandle &handle, QGraphicsScene *scene,
                       const ZelCurveView2Style *style, QObject *parent = nullptr);
    /// Takes the items out of the scene; they are deleted from the event loop.
    ~ZelCurveVertexItem() override;

    ZelVertexHandle handle() const { return handle_; }
    /// The marker of this point, whether it is shown or not.
    Marker *marker(ZelVertexData key) const;

    const Points &shown() const { return shown_; }
    /// Moves the items to where the vertex is now.
    void update();
    void onStyleUpdated();

private:
    void showTangent(Anchor &anchor, Marker &tangentMarker,
                     FixedLineWidthItem<QGraphicsLineItem> &line, bool shown, QPointF end);
    bool isAnySelected() const;
    void onSelectionChanged();
    void highlight(bool highlighted);
    template <typename Item>
    void discard(Item *item);

    QPointer<QGraphicsScene> scene_;
    const ZelCurveView2Style *style_;
    ZelVertexHandle handle_;
    Points shown_;
    bool isUpToDate_ = false;
    bool isHighlighted_ = false;
    // The scene owns these while it lives.
    Anchor *anchor_;
    Anchor *inAnchor_;
    Anchor *outAnchor_;
    Marker *marker_;
    Marker *inMarker_;
    Marker *outMarker_;
    FixedLineWidthItem<QGraphicsLineItem> *inLine_;
    FixedLineWidthItem<QGraphicsLineItem> *outLine_;
};

/// A position in the scene without a picture. It takes the view's transform, while the marker that
/// is its child keeps its size in pixels.
class ZelCurveVertexItem::Anchor : public QGraphicsItem
{
public:
    Anchor();

    QRectF boundingRect() const override { return {}; }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
};

/// A point of a vertex as the user takes hold of it.
class ZelCurveVertexItem::IMarker
{
public:
    virtual ~IMarker();

    virtual void setPosition(QPointF position) = 0;
    virtual QPointF position() const = 0;
    /// Removes the vertex, or clears the tangent.
    virtual void remove() = 0;
    virtual ZelVertexHandle vertexHandle() const = 0;
    virtual ZelVertexData vertexData() const = 0;
};
