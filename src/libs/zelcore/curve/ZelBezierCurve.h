#pragma once

#include "ZelBezierCurveModel.h"
#include "ZelBezierPiece.h"

#include <vector>

/// The vertices of a curve and what is computed from them.
class ZelBezierCurve
{
public:
    using Vertex = ZelBezierCurveModel::Vertex;

    /// Takes the vertices that have a finite position, sorted; false if there were others or
    /// tangents that are not finite.
    bool load(const QList<Vertex> &vertices);
    const std::vector<Vertex> &vertices() const { return vertices_; }
    int count() const { return int(vertices_.size()); }
    const Vertex &at(int index) const { return vertices_[size_t(index)]; }
    bool has(int index) const { return index >= 0 && index < count(); }

    /// Where a vertex at x goes: behind those of at most this x.
    int indexFor(double x) const;
    void insert(int index, const Vertex &vertex);
    void remove(int index);
    /// False if the vertex was just so before.
    bool replace(int index, const Vertex &vertex);

    /// The vertex, moved between its neighbours with its tangents.
    Vertex moved(int index, QPointF position) const;
    /// A vertex on the curve at x; the tangents of its neighbours become shorter, so that the
    /// curve keeps its shape. To be inserted at indexFor(x).
    Vertex split(double x);

    /// Whether a piece leads from this vertex to the next.
    bool hasPiece(int index) const;
    bool isStraight(int index) const;
    ZelBezierPiece piece(int index) const;
    std::optional<double> valueAt(double x) const;
    QPainterPath path() const;
    QPainterPath path(double left, double right) const;
    QRectF bounds() const;

private:
    void forget();
    void addPieces(QPainterPath &path, int first, int last) const;

    std::vector<Vertex> vertices_;
    mutable std::optional<QPainterPath> path_;
    mutable std::optional<QRectF> bounds_;
};

/// Whether both coordinates are numbers and not infinite.
bool zelIsFinite(QPointF point);
/// The point with coordinates of at most 1e30 in size.
QPointF zelLimited(QPointF point);
/// The vertex with its points limited and its tangents on their own sides.
ZelBezierCurveModel::Vertex zelTidied(ZelBezierCurveModel::Vertex vertex);
