#pragma once

#include <ZelCore/ZelCurveModel>

#include <QDebug>
#include <QMetaType>

#include <functional>
#include <memory>

struct ZelVertexSlot;

/// Names one vertex of a curve model and stays with it while other vertices come and go.
///
/// Once its vertex or its model is gone the handle is invalid and harmless: it answers nothing and
/// writes nothing. It can still be compared and hashed, so it can be taken out of containers.
class ZELCORE_EXPORT ZelVertexHandle
{
public:
    /// An invalid handle, equal to every other one made so.
    ZelVertexHandle();
    ZelVertexHandle(const ZelVertexHandle &);
    ZelVertexHandle(ZelVertexHandle &&) noexcept;
    ZelVertexHandle &operator=(const ZelVertexHandle &);
    ZelVertexHandle &operator=(ZelVertexHandle &&) noexcept;
    ~ZelVertexHandle();

    bool isValid() const;
    /// The present index in the model, -1 if invalid.
    int index() const;
    /// Null if the handle never had a model or the model is gone; a vertex that was removed still
    /// names its model.
    ZelCurveModel *model() const;

    bool hasData(ZelVertexData key) const;
    /// A QVariant that holds a QPointF, or an empty one.
    QVariant data(ZelVertexData key) const;
    /// Sets a point, or clears a tangent with an empty value. See ZelCurveModel::setVertexData().
    void setData(ZelVertexData key, const QVariant &value,
                 const ZelCurveModel::ViewTransform *transform = nullptr);
    /// Takes the vertex out of its model.
    void remove();

    bool operator==(const ZelVertexHandle &other) const { return slot_ == other.slot_; }
    bool operator!=(const ZelVertexHandle &other) const { return slot_ != other.slot_; }

    friend size_t qHash(const ZelVertexHandle &handle, size_t seed = 0) noexcept
    {
        return std::hash<std::shared_ptr<ZelVertexSlot>>()(handle.slot_) ^ seed;
    }

private:
    friend class ZelCurveModel;
    explicit ZelVertexHandle(std::shared_ptr<ZelVertexSlot> slot);

    std::shared_ptr<ZelVertexSlot> slot_;
};

/// Writes the present index.
ZELCORE_EXPORT QDebug operator<<(QDebug debug, const ZelVertexHandle &handle);

template <>
struct std::hash<ZelVertexHandle>
{
    size_t operator()(const ZelVertexHandle &handle) const noexcept { return qHash(handle); }
};
