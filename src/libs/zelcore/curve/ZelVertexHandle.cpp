#include "ZelVertexHandle.h"

#include "ZelVertexSlot.h"

#include <utility>

ZelVertexHandle::ZelVertexHandle() = default;
ZelVertexHandle::ZelVertexHandle(const ZelVertexHandle &) = default;
ZelVertexHandle::ZelVertexHandle(ZelVertexHandle &&) noexcept = default;
ZelVertexHandle &ZelVertexHandle::operator=(const ZelVertexHandle &) = default;
ZelVertexHandle &ZelVertexHandle::operator=(ZelVertexHandle &&) noexcept = default;
ZelVertexHandle::~ZelVertexHandle() = default;

ZelVertexHandle::ZelVertexHandle(std::shared_ptr<ZelVertexSlot> slot)
    : slot_(std::move(slot))
{}

bool ZelVertexHandle::isValid() const
{
    return index() >= 0;
}

int ZelVertexHandle::index() const
{
    return slot_ && slot_->model ? slot_->index : -1;
}

ZelCurveModel *ZelVertexHandle::model() const
{
    return slot_ ? slot_->model.data() : nullptr;
}

bool ZelVertexHandle::hasData(ZelVertexData key) const
{
    return isValid() && slot_->model->hasVertexData(slot_->index, key);
}

QVariant ZelVertexHandle::data(ZelVertexData key) const
{
    return isValid() ? slot_->model->vertexData(slot_->index, key) : QVariant();
}

void ZelVertexHandle::setData(ZelVertexData key, const QVariant &value,
                              const ZelCurveModel::ViewTransform *transform)
{
    if (isValid())
        slot_->model->setVertexData(slot_->index, key, value, transform);
}

void ZelVertexHandle::remove()
{
    if (isValid())
        slot_->model->removeVertex(slot_->index);
}

QDebug operator<<(QDebug debug, const ZelVertexHandle &handle)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "ZelVertexHandle(";
    if (handle.isValid())
        debug << handle.index();
    return debug << ')';
}
