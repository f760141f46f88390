#pragma once

#include "TestCase.h"

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

/// A scene of its own with a view of 400 x 300 pixels, 40 a unit across and 100 a unit up, of the
/// area (-5, -1.5) to (5, 1.5).
struct Bench
{
    Bench()
        : scene(std::make_unique<QGraphicsScene>(-100, -100, 200, 200))
        , view(scene.get())
    {
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setTransform(QTransform::fromScale(40, -100));
        view.resize(400, 300);
        view.centerOn(0, 0);
        view.show();
    }

    bool isReady()
    {
        return QTest::qWaitForWindowExposed(&view) && area() == QRectF(-5, -1.5, 10, 3);
    }
    QRectF area() const { return view.mapToScene(view.viewport()->rect()).boundingRect(); }
    void add(ZelCurveViewDecorator2 &decorator)
    {
        decorator.setScene(scene.get());
        update(decorator);
    }
    void update(ZelCurveViewDecorator2 &decorator)
    {
        decorator.updateItems(area(), view.transform());
    }
    QPoint pixel(double x, double y) const { return view.mapFromScene(QPointF(x, y)); }
    /// The items of a kind, those behind first.
    template <typename Item>
    QList<Item *> items() const
    {
        QList<Item *> found;
        const QList<QGraphicsItem *> all = scene->items(Qt::AscendingOrder);
        for (QGraphicsItem *item : all) {
            if (auto *wanted = dynamic_cast<Item *>(item))
                found.append(wanted);
        }
        return found;
    }
    /// The rectangles of the marker's parts, in pixels from the top left of the view.
    QList<QRectF> markerParts() const
    {
        QList<QRectF> parts;
        const QList<QGraphicsItem *> all = scene->items(Qt::AscendingOrder);
        for (const QGraphicsItem *item : all) {
            if (item->flags() & QGraphicsItem::ItemClipsChildrenToShape)
                parts.append(
                    item->deviceTransform(view.viewportTransform()).mapRect(item->boundingRect()));
        }
        return parts;
    }

    std::unique_ptr<QGraphicsScene> scene;
    QGraphicsView view;
};
