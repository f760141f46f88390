#pragma once

#include <ZelCore/ZelVertexHandle>

#include <QList>

#include <optional>

/// A curve of cubic pieces between vertices with optional tangents, a function of x: tone curves,
/// falloffs, animation curves.
///
/// Vertices are sorted by x. A vertex that is moved stays between its neighbours, as does the end
/// of a tangent on its own side of the vertex; tangents move with their vertex. A piece whose
/// tangents reach beyond its other end is drawn with them shortened, so that it never turns back.
/// Between two vertices without tangents the piece is straight.
///
/// Points that are not finite are refused with a warning; coordinates are limited to -1e30 to 1e30.
/// Every write that has an effect notifies at once.
///
///     ZelBezierCurveModel model;
///     model.setVertices({{QPointF(0, 0)}, {QPointF(1, 1), QPointF(0.7, 1), QPointF(1.3, 1)}});
///     ZelVertexHandle vertex = model.vertexHandle(1);
///     model.setSmooth(vertex, true);
class ZELCORE_EXPORT ZelBezierCurveModel : public ZelCurveModel
{
    Q_OBJECT

public:
    struct ZELCORE_EXPORT Vertex
    {
        QPointF position;
        /// The end points, in the coordinates of the curve.
        std::optional<QPointF> inTangent = {};
        std::optional<QPointF> outTangent = {};
        /// When one tangent is turned the other one turns too and keeps its length on screen.
        bool smooth = false;
        /// No piece leads to the next vertex.
        bool gapAfter = false;

        /// Exact, unlike that of QPointF.
        bool operator==(const Vertex &other) const;
    };

    explicit ZelBezierCurveModel(QObject *parent = nullptr);
    ~ZelBezierCurveModel() override;

    QList<Vertex> vertices() const;
    /// Replaces all vertices: sorts them (those of equal x keep their order), leaves out those
    /// whose position is not finite, and emits hardReset() and changed().
    void setVertices(const QList<Vertex> &vertices);
    /// Adds a vertex behind those of at most its x; an invalid handle if one of its points is not
    /// finite.
    ZelVertexHandle insertVertex(const Vertex &vertex);
    /// The vertex of the handle; a default one if the handle is not of this model.
    Vertex vertex(const ZelVertexHandle &handle) const;
    /// Sets everything about a vertex at once, limited like single writes.
    void setVertex(const ZelVertexHandle &handle, const Vertex &vertex);

    bool isSmooth(const ZelVertexHandle &handle) const;
    /// Making a vertex smooth lays its tangents on one line and adds those that it lacks towards
    /// neighbours, a third of the way long.
    void setSmooth(const ZelVertexHandle &handle, bool smooth);
    bool hasGapAfter(const ZelVertexHandle &handle) const;
    void setGapAfter(const ZelVertexHandle &handle, bool gap);

    /// The curve's height at x; none in gaps and outside the vertices.
    std::optional<double> valueAt(double x) const;

    QPainterPath path(QRectF area) const override;
    /// Bounds of the vertices and of the curve; null without vertices.
    QRectF boundingRect() const override;
    /// Adds a vertex on the curve without changing its shape: on the connecting line in a gap, at
    /// the height of the nearest vertex outside, at height 0 in an empty model.
    void addVertex(float x) override;
    int vertexCount() const override;
    QVariant vertexData(int index, ZelVertexData key) const override;
    void setVertexData(int index, ZelVertexData key, const QVariant &value,
                       const ViewTransform *transform = nullptr) override;
    void removeVertex(int index) override;

private:
    ZelVertexHandle insert(int index, const Vertex &vertex);
    void apply(int index, const Vertex &vertex);
    bool owns(const ZelVertexHandle &handle) const;
    bool checkIndex(int index) const;
    bool isUsable(const Vertex &vertex) const;

    std::unique_ptr<class ZelBezierCurve> curve_;
    /// Takes the handle of the vertex that is being added.
    ZelVertexHandle *newest_ = nullptr;
};
