#pragma once

#include <ZelWidgets/ZelCurveViewDecorator>
#include <ZelWidgets/ZelVertexIndex>
#include <ZelWidgets/zelwidgets_export.h>

#include <QList>
#include <QPen>
#include <QTransform>
#include <QWidget>

#include <memory>
#include <vector>

/// The simple curve display: paints curves and lets the user select vertices by a click and drag
/// them. ZelCurveView2 does more.
class ZELWIDGETS_EXPORT ZelCurveView : public QWidget
{
    Q_OBJECT

public:
    explicit ZelCurveView(QWidget *parent = nullptr);
    ~ZelCurveView() override;

    /// The model is not owned and may die while it is shown; null and one that is there already are
    /// ignored. Its pen is black and one pixel wide.
    void addCurve(ZelCurveModel *model);
    /// Clears the selection if it was on this curve.
    void removeCurve(ZelCurveModel *model);
    /// Emits selectionChanged() with an invalid index.
    void clearCurves();
    void setCurvePen(ZelCurveModel *model, const QPen &pen);
    /// The decorator is not owned and has to outlive the view; null is ignored.
    void addDecorator(ZelCurveViewDecorator *decorator);
    /// The diameter of vertices in pixels, 4 at first; less than 1 is ignored.
    void setVertexSize(double size);
    /// The shown area in curve coordinates, (0, 0, 1, 1) at first.
    void setView(const QRectF &view);

    /// Leads from curve coordinates to the pixels of a widget of this size, with the area's centre
    /// in the middle and y upwards. Identity if either is empty.
    static QTransform viewToWidget(const QSize &size, const QRectF &view, bool keepAspect);

Q_SIGNALS:
    /// The selected vertex; invalid if none is selected.
    void selectionChanged(ZelVertexIndex index);

protected:
    /// Shows the model that sent the signal anew.
    void curveChanged();
    void paintDecorators(QPainter &painter);
    void vertexAdded(const ZelVertexIndex &index);
    void vertexMoved(const ZelVertexIndex &from, const ZelVertexIndex &to);
    void vertexRemoved(const ZelVertexIndex &index);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Curve;

    void clearSelection();
    Curve *curveFromModel(const ZelCurveModel *model) const;
    void setSelectedFromPoint(const QPointF &point);
    void setSelection(const ZelVertexIndex &index);
    void updateCurve(Curve *curve);
    ZelVertexIndex vertexAtPoint(const QPointF &point);
    void updateTransforms();
    void paintVertices(QPainter &painter, const Curve &curve) const;
    void removeDeadCurves();

    QRectF view_{0, 0, 1, 1};
    QTransform viewToWidgetTransform_;
    QTransform widgetToViewTransform_;
    bool keepAspectRatio_ = false;
    QList<ZelCurveViewDecorator *> decorators_;
    double vertexSize_ = 4.0;
    std::vector<std::unique_ptr<Curve>> curves_;
    ZelVertexIndex selection_;
    QPointF dragOffset_;
};
