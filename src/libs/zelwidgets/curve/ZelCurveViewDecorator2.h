#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>
#include <QRectF>
#include <QTransform>

class QGraphicsScene;
class QPainter;

/// Adds to a curve view what is no curve: axes, grids, rulers, markers.
///
/// A decorator either paints by itself or owns items in the scene and keeps them in place. The view
/// that it is added to owns it.
class ZELWIDGETS_EXPORT ZelCurveViewDecorator2 : public QObject
{
    Q_OBJECT

public:
    ZelCurveViewDecorator2();
    ~ZelCurveViewDecorator2() override;

public Q_SLOTS:
    /// The view shows another part of the scene, or at another scale. The area is the whole
    /// viewport in scene coordinates.
    virtual void updateItems(QRectF visibleArea, QTransform sceneToView);

public:
    /// Called once, when the decorator is added to a view. The scene may die first.
    virtual void setScene(QGraphicsScene *scene);
    /// Paints in scene coordinates.
    virtual void paint(QPainter &painter, QRectF const &rect, QTransform const &transform);

Q_SIGNALS:
    /// What the decorator paints has changed; the view repaints.
    void updated();
};
