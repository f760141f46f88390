#pragma once

#include <ZelCore/ZelCurveModel>

#include <QPointer>

/// What all handles of one vertex share.
struct ZelVertexSlot
{
    QPointer<ZelCurveModel> model;
    /// -1 once the vertex is gone.
    int index = -1;
};
