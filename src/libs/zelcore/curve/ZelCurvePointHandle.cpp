#include "ZelCurvePointHandle.h"

ZelCurvePointHandle::ZelCurvePointHandle(const ZelVertexHandle &vertex, ZelVertexData key)
    : vertex_(vertex)
    , key_(key)
{}

bool ZelCurvePointHandle::isValid() const
{
    return vertex_.hasData(key_);
}

QPointF ZelCurvePointHandle::data() const
{
    return vertex_.data(key_).toPointF();
}

void ZelCurvePointHandle::setData(const QPointF &point,
                                  const ZelCurveModel::ViewTransform *transform)
{
    vertex_.setData(key_, point, transform);
}
