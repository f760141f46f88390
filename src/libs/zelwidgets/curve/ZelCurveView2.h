#pragma once

#include <ZelCore/ZelCurveModel>
#include <ZelCore/ZelCurvePointHandle>
#include <ZelCore/ZelVertexHandle>
#include <ZelWidgets/ZelCurveView2Style>
#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QRectF>
#include <QWidget>

#include <memory>
#include <vector>

class ZelCurveGraphicsView;
class ZelCurveScene;
class ZelCurveViewDecorator2;

/// The curve editor: shows any number of curve models and lets the user edit them.
///
/// When it is shown first it fits all curves with a tenth of air, unless an area was set before.
/// The y axis points up. A navigable style lets the user zoom and pan.
///
///     auto *view = new ZelCurveView2(parent);
///     view->addCurve(model); // not owned
///     view->setCurveColor(model, Qt::red);
///     view->addDecoratorToBackground(new ZelAxisDecorator);
class ZELWIDGETS_EXPORT ZelCurveView2 : public QWidget
{
    Q_OBJECT

public:
    /// What the context menu was opened on.
    struct Context
    {
        QPointF scenePosition;
        /// The marker there; invalid, with the position's key, if there is none.
        ZelCurvePointHandle handle;
    };
    class ContextAction;

    explicit ZelCurveView2(QWidget *parent = nullptr);
    ~ZelCurveView2() override;

    /// A model can be added once; it is not owned and may die while it is shown.
    void addCurve(ZelCurveModel *model);
    void removeCurve(ZelCurveModel *model);
    /// Removes all curves, their colours and their widths.
    void clearCurves();

    /// Both emit styleChanged(); the model need not be added yet.
    void setCurveColor(ZelCurveModel *model, const QColor &color);
    void setCurveWidth(ZelCurveModel *model, float width);

    ZelCurveView2Style getStyle() const;
    /// Copies the record and emits styleChanged(). Null is ignored.
    void setStyle(const ZelCurveView2Style *style);

    /// The view takes the decorators over and gives them back for further settings.
    ZelCurveViewDecorator2 *addDecoratorToBackground(ZelCurveViewDecorator2 *decorator);
    ZelCurveViewDecorator2 *addDecoratorToForeground(ZelCurveViewDecorator2 *decorator);
    /// Deletes all decorators.
    void clearDecorators();

    /// Adds an entry to the context menu; null is ignored.
    void addContextMenuAction(std::unique_ptr<ContextAction> action);

    std::shared_ptr<ZelCurveModel::ViewTransform> viewTransform() const;

public Q_SLOTS:
    /// In curve coordinates. An invalid rectangle is refused.
    void setVisibleArea(QRectF sceneSection);
    QRectF visibleArea() const;
    /// Shows all curves with a tenth of air.
    void zoomToFit();

Q_SIGNALS:
    /// The selected vertex, or an invalid handle if none is selected.
    void selectionChanged(ZelVertexHandle vertex);
    /// The user is about to move a vertex or tangent, and has done so.
    void dragStarted();
    void dragEnded();
    void styleChanged();
    void visibleAreaChanged();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void showContextMenu(const QPoint &point);
    Context contextAt(const QPoint &point) const;
    void remember(const ZelCurveModel *model);
    /// Keeps the colour and the width of a dead model from a new one at its address.
    void forget(const QObject *model);

    ZelCurveScene *scene_;
    ZelCurveGraphicsView *view_;
    std::unique_ptr<ZelCurveView2Style> style_;
    std::vector<std::unique_ptr<ContextAction>> contextActions_;
    bool visibleAreaSet_ = false;
};

/// An entry of the curve editor's context menu.
class ZELWIDGETS_EXPORT ZelCurveView2::ContextAction
{
public:
    virtual ~ContextAction();

    /// Asked whenever the menu opens.
    virtual bool isEnabled(const Context &context) const = 0;
    virtual void trigger(const Context &context) = 0;
    virtual QString text() const = 0;
};
