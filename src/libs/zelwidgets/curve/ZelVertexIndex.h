#pragma once

#include <ZelCore/ZelCurveModel>
#include <ZelWidgets/zelwidgets_export.h>

#include <QMetaType>
#include <QPointer>

class QDebug;

/// A vertex of a curve model by its place in the model's order.
///
/// It doesn't stay with its vertex when others come or go; ZelVertexHandle does.
class ZELWIDGETS_EXPORT ZelVertexIndex
{
public:
    ZelVertexIndex() = default;
    ZelVertexIndex(ZelCurveModel *model, int index);

    ZelCurveModel *model() const { return model_; }
    int index() const { return index_; }
    /// True with a living model and an index of at least 0, which may lie behind the last vertex.
    bool isValid() const;

    /// A QVariant that holds a QPointF, or an empty one.
    QVariant data(ZelVertexData key) const;
    void setData(ZelVertexData key, const QVariant &value) const;

    bool operator==(const ZelVertexIndex &other) const;
    bool operator!=(const ZelVertexIndex &other) const { return !(*this == other); }

private:
    QPointer<ZelCurveModel> model_;
    int index_ = -1;
};

ZELWIDGETS_EXPORT QDebug operator<<(QDebug debug, const ZelVertexIndex &index);

Q_DECLARE_METATYPE(ZelVertexIndex)
