#pragma once

#include <ZelCore/ZelVertexHandle>

#include <QList>
#include <QPointer>

/// Lists the vertices of a model as handles, in the model's order, and tells of vertices that come
/// and go by their handles.
///
/// A hard reset of the model replaces the list without vertexAdded() and vertexRemoved(): whoever
/// needs to know listens to ZelCurveModel::hardReset(). With the model's death the list is empty.
class ZELCORE_EXPORT ZelPersistentVertexHandler : public QObject
{
    Q_OBJECT

public:
    using const_iterator = QList<ZelVertexHandle>::const_iterator;

    /// The model is not owned; the handler has no parent. A null model has no vertices.
    explicit ZelPersistentVertexHandler(ZelCurveModel *model);

    /// Iterators are good until a vertex comes or goes.
    const_iterator begin() const { return handles_.cbegin(); }
    const_iterator end() const { return handles_.cend(); }

Q_SIGNALS:
    void vertexAdded(ZelVertexHandle vertex);
    /// The handle is invalid by now but equal to the one that was told before.
    void vertexRemoved(ZelVertexHandle vertex);

private:
    void onVertexAdded(int index);
    void onVertexRemoved(int index);
    void reload();
    void catchUp();
    void catchUpOnce();
    bool isNextChange() const;

    QPointer<ZelCurveModel> model_;
    QList<ZelVertexHandle> handles_;
    /// The state of the model's handles that the list shows.
    quint64 revision_ = 0;
};
