#pragma once

#include <ZelCore/ZelVertexData>
#include <ZelCore/zelcore_export.h>

#include <QObject>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QVariant>

#include <memory>

class ZelVertexHandle;

/// A curve through vertices that views show and edit.
///
/// A subclass supplies the vertices, in the order in which their indexes count, and tells of every
/// change at once: vertexAdded() and vertexRemoved() after the vertex came or went, hardReset()
/// after all vertices were replaced, and changed() behind any of them and after every other change.
/// The handles of vertices follow these signals, so the signals must not be blocked while vertices
/// come or go.
class ZELCORE_EXPORT ZelCurveModel : public QObject
{
    Q_OBJECT

public:
    class ViewTransform;

    explicit ZelCurveModel(QObject *parent = nullptr);
    /// All handles become invalid.
    ~ZelCurveModel() override;

    /// The curve as far as it touches the area, or more of it; with an empty area the whole curve.
    /// Gaps in the curve are further MoveTo elements.
    virtual QPainterPath path(QRectF area) const = 0;
    virtual QRectF boundingRect() const = 0;
    /// Adds a vertex on the curve at this horizontal position.
    virtual void addVertex(float x) = 0;

    virtual int vertexCount() const = 0;
    /// A QVariant that holds a QPointF, or an empty one if the vertex lacks the point or there is
    /// no such vertex.
    virtual QVariant vertexData(int index, ZelVertexData key) const = 0;
    /// Sets a point of a vertex; an empty value clears a tangent. The transform says how lengths
    /// look on screen; without one both axes count alike. What a model can't take as it is it
    /// limits or ignores.
    virtual void setVertexData(int index, ZelVertexData key, const QVariant &value,
                               const ViewTransform *transform = nullptr) = 0;
    virtual void removeVertex(int index) = 0;

    bool hasVertexData(int index, ZelVertexData key) const;
    /// A handle that stays with the vertex whatever its index becomes; invalid if there is no such
    /// vertex. Handles of one vertex are equal whenever they were asked for.
    ZelVertexHandle vertexHandle(int index) const;

Q_SIGNALS:
    /// The curve looks different, or may.
    void changed();
    /// All vertices were replaced; the former handles are invalid.
    void hardReset();
    void vertexAdded(int index);
    /// The index is that which the vertex had.
    void vertexRemoved(int index);

private:
    friend class ZelPersistentVertexHandler;
    std::unique_ptr<class ZelCurveModelPrivate> d_;
};

/// How a view stretches the axes of the curves it shows.
class ZELCORE_EXPORT ZelCurveModel::ViewTransform
{
public:
    virtual ~ViewTransform();

    /// The vector that points on screen where the first one does and is there as long as the
    /// second one. Not finite if the first one has no direction.
    virtual QPointF operator()(QPointF direction, QPointF length) const = 0;
};
