#include "ZelVertexIndex.h"

#include <QDebug>

ZelVertexIndex::ZelVertexIndex(ZelCurveModel *model, int index)
    : model_(model)
    , index_(index)
{}

bool ZelVertexIndex::isValid() const
{
    return model_ && index_ >= 0;
}

QVariant ZelVertexIndex::data(ZelVertexData key) const
{
    return isValid() ? model_->vertexData(index_, key) : QVariant();
}

void ZelVertexIndex::setData(ZelVertexData key, const QVariant &value) const
{
    if (isValid())
        model_->setVertexData(index_, key, value);
}

bool ZelVertexIndex::operator==(const ZelVertexIndex &other) const
{
    return model_ == other.model_ && index_ == other.index_;
}

QDebug operator<<(QDebug debug, const ZelVertexIndex &index)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "ZelVertexIndex(" << static_cast<const void *>(index.model()) << ", "
                    << index.index() << ')';
    return debug;
}
