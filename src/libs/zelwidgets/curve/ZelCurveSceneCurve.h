#pragma once

#include "curve/ZelCurveVertexItem.h"
#include "curve/ZelFixedLineWidthItem.h"

#include <ZelCore/ZelPersistentVertexHandler>
#include <ZelWidgets/ZelCurveScene>

#include <QList>
#include <QPointer>

#include <memory>
#include <unordered_map>
#include <vector>

/// One curve in the scene: its line, connectors across its gaps, and its vertices.
class ZelCurveScene::Curve : public QObject
{
    Q_OBJECT

public:
    Curve(ZelCurveModel *model, ZelCurveScene *scene, ZelCurveView2Style const *style);
    ~Curve() override;

    /// Null once the model is gone.
    ZelCurveModel *model() const { return model_; }
    /// Null if the vertex is not of this curve.
    ZelCurveVertexItem *vertexItem(const ZelVertexHandle &handle) const;

    /// Shows the model as it is now.
    void update();
    void onStyleUpdated();
    /// Hears nothing any more; for a curve that is about to be deleted.
    void retire();

public Q_SLOTS:
    void removeVertex(ZelVertexHandle handle);
    void addVertex(ZelVertexHandle handle);

private:
    using PathItem = FixedLineWidthItem<QGraphicsPathItem>;
    struct DeleteLater
    {
        void operator()(QObject *object) const { object->deleteLater(); }
    };

    QPen curvePen() const;
    void updatePath();
    void updateVertices();
    void updateAllVertices();
    void learnOrder();
    void onVertexCameOrWent();
    void updateGaps();
    void setGapCount(int count);
    void onModelDestroyed();

    ZelCurveView2Style const *style_;
    QPointer<ZelCurveModel> model_;
    QPointer<ZelPersistentVertexHandler> vertexHandler_;
    QPointer<ZelCurveScene> scene_;
    // The scene owns the items while it lives.
    PathItem *pathItem_;
    std::unordered_map<ZelVertexHandle, std::unique_ptr<ZelCurveVertexItem, DeleteLater>> vertices_;
    /// How often one came or went.
    quint64 vertexChanges_ = 0;
    // The vertices and what they show, in the model's order and close together in memory: at each
    // change the model is compared with them. Empty while the order is not known.
    std::vector<ZelCurveVertexItem *> inOrder_;
    std::vector<ZelCurveVertexItem::Points> shown_;
    QList<PathItem *> gapItems_;
};
