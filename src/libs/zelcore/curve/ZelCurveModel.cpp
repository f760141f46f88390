#include "ZelCurveModel.h"

#include "ZelCurveModelPrivate.h"
#include "ZelVertexHandle.h"

ZelCurveModelPrivate::~ZelCurveModelPrivate()
{
    clear();
}

std::shared_ptr<ZelVertexSlot> ZelCurveModelPrivate::slot(ZelCurveModel *model, int index)
{
    const int count = model->vertexCount();
    if (index < 0 || index >= count)
        return nullptr;
    // Vertices went without a word, so no handle can be trusted.
    if (slots_.size() > size_t(count))
        clear();
    if (slots_.size() <= size_t(index))
        slots_.resize(size_t(index) + 1);
    std::shared_ptr<ZelVertexSlot> &slot = slots_[size_t(index)];
    if (!slot)
        slot = std::make_shared<ZelVertexSlot>(ZelVertexSlot{model, index});
    return slot;
}

void ZelCurveModelPrivate::insert(int index)
{
    ++revision_;
    if (index < 0 || size_t(index) >= slots_.size())
        return;
    slots_.insert(slots_.begin() + index, nullptr);
    renumber(size_t(index) + 1);
}

void ZelCurveModelPrivate::remove(int index)
{
    ++revision_;
    if (index < 0 || size_t(index) >= slots_.size())
        return;
    if (slots_[size_t(index)])
        slots_[size_t(index)]->index = -1;
    slots_.erase(slots_.begin() + index);
    renumber(size_t(index));
}

void ZelCurveModelPrivate::clear()
{
    ++revision_;
    for (const std::shared_ptr<ZelVertexSlot> &slot : slots_) {
        if (slot)
            slot->index = -1;
    }
    slots_.clear();
}

void ZelCurveModelPrivate::renumber(size_t from)
{
    for (size_t i = from; i < slots_.size(); ++i) {
        if (slots_[i])
            slots_[i]->index = int(i);
    }
}

// The connections of the constructor are the first ones of these signals: whoever hears a signal
// finds the handles up to date.
ZelCurveModel::ZelCurveModel(QObject *parent)
    : QObject(parent)
    , d_(std::make_unique<ZelCurveModelPrivate>())
{
    connect(this, &ZelCurveModel::vertexAdded, this, [this](int index) { d_->insert(index); });
    connect(this, &ZelCurveModel::vertexRemoved, this, [this](int index) { d_->remove(index); });
    connect(this, &ZelCurveModel::hardReset, this, [this] { d_->clear(); });
}

ZelCurveModel::~ZelCurveModel() = default;

bool ZelCurveModel::hasVertexData(int index, ZelVertexData key) const
{
    return vertexData(index, key).isValid();
}

ZelVertexHandle ZelCurveModel::vertexHandle(int index) const
{
    // Handles write to the model, as the views that hold them do.
    return ZelVertexHandle(d_->slot(const_cast<ZelCurveModel *>(this), index));
}

ZelCurveModel::ViewTransform::~ViewTransform() = default;
