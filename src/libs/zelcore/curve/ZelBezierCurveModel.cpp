#include "ZelBezierCurveModel.h"

#include "ZelBezierCurve.h"

#include <QDebug>
#include <QPointer>

#include <cmath>

namespace {

using Vertex = ZelBezierCurveModel::Vertex;
using ViewTransform = ZelCurveModel::ViewTransform;

// Points are equal only bit for bit: Qt's own comparison takes neighbours for alike.
bool same(QPointF left, QPointF right)
{
    return left.x() == right.x() && left.y() == right.y();
}

bool same(const std::optional<QPointF> &left, const std::optional<QPointF> &right)
{
    return left.has_value() == right.has_value() && (!left || same(*left, *right));
}

void warnOfNumbers()
{
    qWarning() << "ZelBezierCurveModel: points that are not finite are ignored";
}

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

QPointF turned(QPointF direction, QPointF vector, const ViewTransform *transform)
{
    return transform ? (*transform)(direction, vector)
                     : direction * (length(vector) / length(direction));
}

std::optional<QPointF> &tangentOf(Vertex &vertex, ZelVertexData key)
{
    return key == ZelVertexData::InTangent ? vertex.inTangent : vertex.outTangent;
}

/// Sets a tangent; that on the other side of a smooth vertex turns along.
Vertex withTangent(Vertex vertex, ZelVertexData key, QPointF end, const ViewTransform *transform)
{
    tangentOf(vertex, key) = end;
    vertex = zelTidied(vertex);
    const bool isIn = key == ZelVertexData::InTangent;
    std::optional<QPointF> &other =
        tangentOf(vertex, isIn ? ZelVertexData::OutTangent : ZelVertexData::InTangent);
    if (!vertex.smooth || !other)
        return vertex;
    const QPointF direction = vertex.position - *tangentOf(vertex, key);
    if (direction.x() == 0.0 && direction.y() == 0.0)
        return vertex;
    const QPointF vector = turned(direction, *other - vertex.position, transform);
    if (zelIsFinite(vector))
        other = vertex.position + vector;
    return zelTidied(vertex);
}

/// Lays both tangents on the line from the one end to the other.
Vertex straightened(Vertex vertex)
{
    if (!vertex.inTangent || !vertex.outTangent)
        return vertex;
    const QPointF line = *vertex.outTangent - *vertex.inTangent;
    const double whole = length(line);
    if (whole > 0.0) {
        const double inLength = length(*vertex.inTangent - vertex.position);
        const double outLength = length(*vertex.outTangent - vertex.position);
        vertex.inTangent = vertex.position - line * (inLength / whole);
        vertex.outTangent = vertex.position + line * (outLength / whole);
    }
    return zelTidied(vertex);
}

/// The tangents that the vertex lacks towards its neighbours, along the line between these.
Vertex withMissingTangents(const ZelBezierCurve &curve, int index)
{
    Vertex vertex = curve.at(index);
    const QPointF before =
        curve.hasPiece(index - 1) ? curve.at(index - 1).position : vertex.position;
    const QPointF behind = curve.hasPiece(index) ? curve.at(index + 1).position : vertex.position;
    const QPointF line = behind - before;
    if (line.x() <= 0.0)
        return vertex;
    if (!vertex.inTangent && curve.hasPiece(index - 1)) {
        const double width = vertex.position.x() - before.x();
        vertex.inTangent = vertex.position - line * (width / line.x() / 3.0);
    }
    if (!vertex.outTangent && curve.hasPiece(index)) {
        const double width = behind.x() - vertex.position.x();
        vertex.outTangent = vertex.position + line * (width / line.x() / 3.0);
    }
    return zelTidied(vertex);
}

} // namespace

bool ZelBezierCurveModel::Vertex::operator==(const Vertex &other) const
{
    return same(position, other.position) && same(inTangent, other.inTangent) &&
           same(outTangent, other.outTangent) && smooth == other.smooth &&
           gapAfter == other.gapAfter;
}

ZelBezierCurveModel::ZelBezierCurveModel(QObject *parent)
    : ZelCurveModel(parent)
    , curve_(std::make_unique<ZelBezierCurve>())
{
    // Comes before all other listeners, so the index still is that of the new vertex.
    connect(this, &ZelCurveModel::vertexAdded, this, [this](int index) {
        if (newest_)
            *newest_ = vertexHandle(index);
        newest_ = nullptr;
    });
}

ZelBezierCurveModel::~ZelBezierCurveModel() = default;

QList<Vertex> ZelBezierCurveModel::vertices() const
{
    return {curve_->vertices().cbegin(), curve_->vertices().cend()};
}

void ZelBezierCurveModel::setVertices(const QList<Vertex> &vertices)
{
    if (!curve_->load(vertices))
        warnOfNumbers();
    const QPointer<ZelBezierCurveModel> alive(this);
    Q_EMIT hardReset();
    if (alive)
        Q_EMIT changed();
}

ZelVertexHandle ZelBezierCurveModel::insertVertex(const Vertex &vertex)
{
    if (!isUsable(vertex))
        return {};
    const Vertex added = zelTidied(vertex);
    return insert(curve_->indexFor(added.position.x()), added);
}

void ZelBezierCurveModel::addVertex(float x)
{
    if (!std::isfinite(x)) {
        warnOfNumbers();
        return;
    }
    const double position = zelLimited(QPointF(double(x), 0.0)).x();
    const Vertex added = curve_->split(position);
    insert(curve_->indexFor(position), added);
}

ZelVertexHandle ZelBezierCurveModel::insert(int index, const Vertex &vertex)
{
    curve_->insert(index, vertex);
    const QPointer<ZelBezierCurveModel> alive(this);
    ZelVertexHandle handle;
    newest_ = &handle;
    Q_EMIT vertexAdded(index);
    if (alive)
        Q_EMIT changed();
    return handle;
}

void ZelBezierCurveModel::removeVertex(int index)
{
    if (!checkIndex(index))
        return;
    curve_->remove(index);
    const QPointer<ZelBezierCurveModel> alive(this);
    Q_EMIT vertexRemoved(index);
    if (alive)
        Q_EMIT changed();
}

Vertex ZelBezierCurveModel::vertex(const ZelVertexHandle &handle) const
{
    return owns(handle) ? curve_->at(handle.index()) : Vertex();
}

void ZelBezierCurveModel::setVertex(const ZelVertexHandle &handle, const Vertex &vertex)
{
    if (!owns(handle) || !isUsable(vertex))
        return;
    const Vertex moved = curve_->moved(handle.index(), vertex.position);
    Vertex wanted = vertex;
    wanted.position = moved.position;
    apply(handle.index(), zelTidied(wanted));
}

bool ZelBezierCurveModel::isSmooth(const ZelVertexHandle &handle) const
{
    return vertex(handle).smooth;
}

void ZelBezierCurveModel::setSmooth(const ZelVertexHandle &handle, bool smooth)
{
    if (!owns(handle))
        return;
    Vertex wanted = vertex(handle);
    if (smooth && !wanted.smooth)
        wanted = straightened(withMissingTangents(*curve_, handle.index()));
    wanted.smooth = smooth;
    apply(handle.index(), wanted);
}

bool ZelBezierCurveModel::hasGapAfter(const ZelVertexHandle &handle) const
{
    return vertex(handle).gapAfter;
}

void ZelBezierCurveModel::setGapAfter(const ZelVertexHandle &handle, bool gap)
{
    if (!owns(handle))
        return;
    Vertex wanted = vertex(handle);
    wanted.gapAfter = gap;
    apply(handle.index(), wanted);
}

std::optional<double> ZelBezierCurveModel::valueAt(double x) const
{
    return std::isfinite(x) ? curve_->valueAt(x) : std::nullopt;
}

QPainterPath ZelBezierCurveModel::path(QRectF area) const
{
    if (area.isEmpty() || !zelIsFinite(area.topLeft()) || !zelIsFinite(area.bottomRight()))
        return curve_->path();
    return curve_->path(area.left(), area.right());
}

QRectF ZelBezierCurveModel::boundingRect() const
{
    return curve_->bounds();
}

int ZelBezierCurveModel::vertexCount() const
{
    return curve_->count();
}

QVariant ZelBezierCurveModel::vertexData(int index, ZelVertexData key) const
{
    if (!curve_->has(index))
        return {};
    Vertex vertex = curve_->at(index);
    switch (key) {
    case ZelVertexData::Position:
        return vertex.position;
    case ZelVertexData::InTangent:
    case ZelVertexData::OutTangent:
        break;
    default:
        return {};
    }
    const std::optional<QPointF> &tangent = tangentOf(vertex, key);
    return tangent ? QVariant(*tangent) : QVariant();
}

void ZelBezierCurveModel::setVertexData(int index, ZelVertexData key, const QVariant &value,
                                        const ViewTransform *transform)
{
    if (!checkIndex(index))
        return;
    const bool isPosition = key == ZelVertexData::Position;
    if (!isPosition && key != ZelVertexData::InTangent && key != ZelVertexData::OutTangent) {
        qWarning() << "ZelBezierCurveModel: vertices have no data of key" << int(key);
        return;
    }
    if (!isPosition && !value.isValid()) {
        Vertex wanted = curve_->at(index);
        tangentOf(wanted, key).reset();
        apply(index, wanted);
        return;
    }
    if (!value.canConvert<QPointF>()) {
        qWarning() << "ZelBezierCurveModel: not a point:" << value;
        return;
    }
    const QPointF point = value.toPointF();
    if (!zelIsFinite(point)) {
        warnOfNumbers();
        return;
    }
    apply(index, isPosition ? curve_->moved(index, point)
                            : withTangent(curve_->at(index), key, point, transform));
}

void ZelBezierCurveModel::apply(int index, const Vertex &vertex)
{
    if (curve_->replace(index, vertex))
        Q_EMIT changed();
}

bool ZelBezierCurveModel::owns(const ZelVertexHandle &handle) const
{
    return handle.isValid() && handle.model() == this;
}

bool ZelBezierCurveModel::checkIndex(int index) const
{
    if (curve_->has(index))
        return true;
    qWarning() << "ZelBezierCurveModel: there is no vertex" << index;
    return false;
}

bool ZelBezierCurveModel::isUsable(const Vertex &vertex) const
{
    const bool usable = zelIsFinite(vertex.position) &&
                        zelIsFinite(vertex.inTangent.value_or(QPointF())) &&
                        zelIsFinite(vertex.outTangent.value_or(QPointF()));
    if (!usable)
        warnOfNumbers();
    return usable;
}
