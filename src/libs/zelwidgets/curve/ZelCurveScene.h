#pragma once

#include <ZelCore/ZelVertexHandle>
#include <ZelWidgets/zelwidgets_export.h>

#include <QGraphicsScene>
#include <QHash>

#include <array>
#include <memory>
#include <unordered_map>

class ZelCurveModel;
class ZelCurveVertexItem;
struct ZelCurveView2Style;

/// Shows curve models as lines with markers on their vertices and tangents.
///
/// The models own all data; the scene follows them and writes to them when the user does. At most
/// one marker is selected. The scene's own items must not be taken out of it by others; clear() is
/// not for this scene, clearCurves() is.
///
/// The signal selectionChanged() of the base is hidden by the one that names the vertex; connect to
/// &QGraphicsScene::selectionChanged where it is needed. Likewise setStyle().
class ZELWIDGETS_EXPORT ZelCurveScene : public QGraphicsScene
{
    Q_OBJECT

public:
    class Curve;

    explicit ZelCurveScene(QWidget *parent);
    ~ZelCurveScene() override;

    /// To be called before the first curve is added. The style is not owned and outlives the
    /// scene's use; after changes to it onStyleUpdated() is due.
    void setStyle(ZelCurveView2Style const *style);

    /// Shows the model, which is not owned, and follows it. A soft assertion fails without a style
    /// or if it is shown already.
    void addCurve(ZelCurveModel *model);
    /// Its items go from the event loop. The scene's rectangle stays.
    void removeCurve(ZelCurveModel *model);
    void clearCurves();

    /// Of all models that live; bounds that are not finite are left out.
    QRectF curvesBoundingRect();
    /// Invalid if no marker is selected.
    ZelVertexHandle selectedVertex() const;
    /// Removes the vertex whose marker is selected, or clears the tangent whose end is.
    void removeSelectedVertex();

public Q_SLOTS:
    /// Shows what has changed in the style.
    void onStyleUpdated();

Q_SIGNALS:
    /// The selection went to another vertex, or there is none (then the handle is invalid).
    void selectionChanged(ZelVertexHandle vertex);
    void styleUpdated();

protected:
    /// The right button never changes the selection.
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    /// Adds a vertex to one of the curves.
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;

private:
    friend class ZelCurveSceneAccess;
    struct DeleteLater
    {
        void operator()(Curve *curve) const;
    };
    using CurveOwner = std::unique_ptr<Curve, DeleteLater>;

    void reloadCurve(ZelCurveModel *curve);
    void updateCurve(ZelCurveModel *curve);
    void updateBoundingRect();
    void onSelectionChanged();
    void ensureSingleSelection();
    void onHardReset(ZelCurveModel *model);
    void follow(ZelCurveModel *model);
    void dropDeadCurve(ZelCurveModel *model);
    void enter(ZelCurveModel *model);

    ZelCurveView2Style const *style_ = nullptr;
    std::unordered_map<ZelCurveModel *, CurveOwner> curves_;
    QRectF boundingRect_;
    ZelVertexHandle selected_;
    /// What the scene hears of each model that was ever added.
    QHash<ZelCurveModel *, std::array<QMetaObject::Connection, 3>> connections_;
    /// The selected item before the latest change; only compared, as it may be gone.
    QGraphicsItem *formerlySelected_ = nullptr;
};
