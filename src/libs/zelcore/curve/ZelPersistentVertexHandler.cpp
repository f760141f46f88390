#include "ZelPersistentVertexHandler.h"

#include "ZelCurveModelPrivate.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// A state that no model reaches.
constexpr quint64 staleRevision = std::numeric_limits<quint64>::max();

} // namespace

ZelPersistentVertexHandler::ZelPersistentVertexHandler(ZelCurveModel *model)
    : model_(model)
{
    if (!model)
        return;
    connect(model, &ZelCurveModel::vertexAdded, this, &ZelPersistentVertexHandler::onVertexAdded);
    connect(model, &ZelCurveModel::vertexRemoved, this,
            &ZelPersistentVertexHandler::onVertexRemoved);
    connect(model, &ZelCurveModel::hardReset, this, &ZelPersistentVertexHandler::reload);
    connect(model, &QObject::destroyed, this, [this] { handles_.clear(); });
    reload();
}

void ZelPersistentVertexHandler::onVertexAdded(int index)
{
    if (!isNextChange() || index < 0 || index > handles_.size()) {
        catchUp();
        return;
    }
    revision_ = model_->d_->revision();
    const ZelVertexHandle handle = model_->vertexHandle(index);
    handles_.insert(index, handle);
    Q_EMIT vertexAdded(handle);
}

void ZelPersistentVertexHandler::onVertexRemoved(int index)
{
    if (!isNextChange() || index < 0 || index >= handles_.size()) {
        catchUp();
        return;
    }
    revision_ = model_->d_->revision();
    Q_EMIT vertexRemoved(handles_.takeAt(index));
}

/// False if the model has changed further inside a signal that this handler hears only now, or
/// will hear later.
bool ZelPersistentVertexHandler::isNextChange() const
{
    return model_->d_->revision() == revision_ + 1;
}

void ZelPersistentVertexHandler::reload()
{
    QList<ZelVertexHandle> handles;
    const int count = model_->vertexCount();
    handles.reserve(count);
    for (int i = 0; i < count; ++i)
        handles.append(model_->vertexHandle(i));
    handles_ = std::move(handles);
    revision_ = model_->d_->revision();
}

/// Brings list and model together one vertex at a time, each told as soon as it is in the list:
/// listeners may change the model again, and then this comes back here.
void ZelPersistentVertexHandler::catchUp()
{
    const QPointer<ZelPersistentVertexHandler> alive(this);
    revision_ = staleRevision;
    while (alive && model_ && revision_ == staleRevision)
        catchUpOnce();
}

void ZelPersistentVertexHandler::catchUpOnce()
{
    const auto gone = [](const ZelVertexHandle &handle) {
        return !handle.isValid();
    };
    const auto removed = std::find_if(handles_.cbegin(), handles_.cend(), gone);
    if (removed != handles_.cend()) {
        Q_EMIT vertexRemoved(handles_.takeAt(removed - handles_.cbegin()));
        return;
    }
    const int count = model_->vertexCount();
    for (int i = 0; i < count; ++i) {
        const ZelVertexHandle handle = model_->vertexHandle(i);
        if (i < handles_.size() && handles_.at(i) == handle)
            continue;
        handles_.insert(i, handle);
        Q_EMIT vertexAdded(handle);
        return;
    }
    revision_ = model_->d_->revision();
}
