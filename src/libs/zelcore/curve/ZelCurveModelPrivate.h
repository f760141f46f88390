#pragma once

#include "ZelVertexSlot.h"

#include <memory>
#include <vector>

/// Keeps the handles of a model's vertices on their indexes.
class ZelCurveModelPrivate
{
public:
    ~ZelCurveModelPrivate();

    std::shared_ptr<ZelVertexSlot> slot(ZelCurveModel *model, int index);
    void insert(int index);
    void remove(int index);
    void clear();
    /// Counts how often vertices came, went or were replaced.
    quint64 revision() const { return revision_; }

private:
    void renumber(size_t from);

    /// Null where no handle was asked for yet; it may end before the vertices do.
    std::vector<std::shared_ptr<ZelVertexSlot>> slots_;
    quint64 revision_ = 0;
};
