#pragma once

#include <ZelCore/ZelVertexData>
#include <ZelCore/ZelVertexHandle>

#include <QList>

class QGraphicsItem;
class ZelCurveModel;
class ZelCurveScene;

/// What the view asks the scene about its markers.
class ZelCurveSceneAccess
{
public:
    /// The models that are shown and live, in no particular order.
    static QList<ZelCurveModel *> models(const ZelCurveScene &scene);
    /// The marker of a vertex' point; null if the scene doesn't show the vertex. A marker may be
    /// hidden.
    static QGraphicsItem *marker(const ZelCurveScene &scene, const ZelVertexHandle &handle,
                                 ZelVertexData key);
};
