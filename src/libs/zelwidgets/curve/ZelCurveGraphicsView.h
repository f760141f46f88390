#pragma once

#include <ZelCore/ZelCurveModel>
#include <ZelCore/ZelCurvePointHandle>
#include <ZelWidgets/zelwidgets_export.h>

#include <QGraphicsView>
#include <QPointer>

#include <memory>
#include <vector>

class ZelCurveScene;
class ZelCurveViewDecorator2;
class ZelCurveViewMarkers;
struct ZelCurveView2Style;

/// Shows a visible area of a curve scene, fitted to the viewport, and lets the user zoom, pan and
/// drag the markers of vertices and tangents.
///
/// The caller turns the y axis up by scaling the view by (1, -1). Zooming and panning work while
/// the style says that the view is navigable. A dragged marker follows the cursor, with Shift only
/// along one axis; beyond the viewport the view scrolls after it. Escape puts it back.
///
/// Keys: Tab and Shift+Tab walk the vertices, Space the markers of the selected one, the arrow keys
/// move the selected marker by a pixel, with Shift by ten; Delete removes it.
class ZELWIDGETS_EXPORT ZelCurveGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    enum ZoomDirection { NoZoom = 0, ZoomIn = 1, ZoomOut = 2 };

    /// The scene is not owned; it may die before the view.
    ZelCurveGraphicsView(ZelCurveScene *scene, QWidget *parent);
    ~ZelCurveGraphicsView() override;

    /// The record is not copied and has to live as long as the view uses it.
    void setStyle(const ZelCurveView2Style *style);

    /// In scene coordinates. Shown as far as whole pixels and the scene's rectangle allow, to which
    /// the area is then corrected; a view that isn't shown yet keeps it for later.
    void setVisibleArea(const QRectF &area);
    QRectF visibleArea() const { return visibleArea_; }

    /// The view takes the decorators over; null and one that it has already are ignored.
    void addDecoratorToBackground(ZelCurveViewDecorator2 *decorator);
    void addDecoratorToForeground(ZelCurveViewDecorator2 *decorator);
    /// Deletes all decorators.
    void clearDecorators();

    /// How the view stretches its axes at present.
    std::shared_ptr<ZelCurveModel::ViewTransform> viewTransform() const;

    /// In heights of the font, whatever is shown: zooming doesn't move layouts.
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Fits the view anew after the style record has changed.
    void onStyleUpdated();

Q_SIGNALS:
    void visibleAreaChanged();
    /// A marker is about to be moved by the user, with the mouse, a key or assistive technology.
    void dragStarted();
    void dragEnded();
    /// The user wants to see all curves (Home, while the view is navigable).
    void fitRequested();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    friend class AccessibleCurveMarkers;
    friend class ZelCurveViewAccess;
    class ViewTransform;
    class VertexDrag;
    struct DragState;
    using Decorators = std::vector<QPointer<ZelCurveViewDecorator2>>;

    QRectF actualVisibleArea() const;
    void applyVisibleArea();
    QRect effectiveViewport() const;
    QRect fullViewport() const;
    bool isValid() const;
    bool isNavigable() const;
    void scaleTo(const QSizeF &size);
    void setScrollbars(const QPointF &point);
    void updateViewport();
    void updateDecorators();
    void zoom(float xScale, float yScale, const QPointF &target);
    ZoomDirection keyZoomDirection(const QKeyEvent *event) const;
    QPointF keyZoomTarget() const;
    bool hitsSelectableItem(QPoint position) const;
    void expandVisibleAreaToContain(const QPointF &point);
    void moveVisibleAreaToContain(const QPointF &point);
    void onDelete();

    void addDecorator(Decorators &decorators, ZelCurveViewDecorator2 *decorator,
                      QGraphicsScene::SceneLayer layer);
    void paintDecorators(const Decorators &decorators, QPainter *painter, const QRectF &rect);
    void startDrag(QPoint position);
    void endDrag();
    void dragVertex(const QMouseEvent *event);
    bool zoomByKey(const QKeyEvent *event);
    bool isEditKey(const QKeyEvent *event) const;
    bool editByKey(const QKeyEvent *event);
    void cancelDrag();
    void nudge(QPoint pixels);
    /// A whole move in one step.
    void moveMarker(ZelCurvePointHandle point, const QPointF &position);
    void walkMarkersOfVertex();
    void selectMarker(int index);
    void announceSelection();
    void announceMove();
    bool requestMenuByKey(const QContextMenuEvent *event);

    QPointer<ZelCurveScene> scene_;
    const ZelCurveView2Style *style_ = nullptr;
    QRectF visibleArea_;
    /// What was asked for, and what the visible area then was.
    QRectF wishedArea_;
    QRectF achievedArea_;
    Decorators backgroundDecorators_;
    Decorators foregroundDecorators_;
    std::unique_ptr<DragState> dragState_;
    std::unique_ptr<ZelCurveViewMarkers> markers_;
};
