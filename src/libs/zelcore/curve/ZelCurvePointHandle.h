#pragma once

#include <ZelCore/ZelVertexHandle>

/// Names one point of one vertex: its position or the end of one of its tangents.
class ZELCORE_EXPORT ZelCurvePointHandle
{
public:
    /// The position of an invalid vertex.
    ZelCurvePointHandle() = default;
    ZelCurvePointHandle(const ZelVertexHandle &vertex, ZelVertexData key);

    /// True while the vertex has this point.
    bool isValid() const;
    ZelVertexHandle vertex() const { return vertex_; }
    ZelVertexData key() const { return key_; }

    /// (0, 0) if the vertex is invalid or lacks the point.
    QPointF data() const;
    void setData(const QPointF &point, const ZelCurveModel::ViewTransform *transform = nullptr);

    bool operator==(const ZelCurvePointHandle &other) const = default;

private:
    ZelVertexHandle vertex_;
    ZelVertexData key_ = ZelVertexData::Position;
};
