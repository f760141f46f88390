#pragma once

#include <ZelWidgets/ZelPenScaling>

#include <QGraphicsLineItem>
#include <QGraphicsPathItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>

#include <cmath>

/// How far a cosmetic pen reaches beyond its line, in coordinates of the scene, in the view where
/// that is farthest.
inline QSizeF zelCosmeticReach(const QGraphicsScene *scene, const QPen &pen)
{
    // The corners of square caps and of bevelled joins are inside of this.
    const double pixels = std::max(1.0, pen.widthF());
    QSizeF reach(0, 0);
    const QList<QGraphicsView *> views = scene ? scene->views() : QList<QGraphicsView *>();
    for (const QGraphicsView *view : views) {
        const QTransform toPixels = view->transform();
        if (toPixels.type() <= QTransform::TxScale) {
            reach = reach.expandedTo(
                {pixels / std::abs(toPixels.m11()), pixels / std::abs(toPixels.m22())});
            continue;
        }
        const QTransform toScene = toPixels.inverted();
        reach = reach.expandedTo({pixels * (std::abs(toScene.m11()) + std::abs(toScene.m21())),
                                  pixels * (std::abs(toScene.m12()) + std::abs(toScene.m22()))});
    }
    return std::isfinite(reach.width()) && std::isfinite(reach.height()) ? reach : QSizeF(0, 0);
}

/// A line or path whose pen keeps its width on screen however far the view is zoomed.
///
/// With a cosmetic pen it has no shape: in coordinates of the scene such a line has no width, so it
/// is never under the cursor, and its bounds follow the views' zoom.
template <typename T>
class FixedLineWidthItem : public T
{
public:
    using T::T;

    QRectF boundingRect() const override
    {
        if (!this->pen().isCosmetic())
            return T::boundingRect();
        const QSizeF reach = zelCosmeticReach(this->scene(), this->pen());
        return outline().adjusted(-reach.width(), -reach.height(), reach.width(), reach.height());
    }

    QPainterPath shape() const override
    {
        return this->pen().isCosmetic() ? QPainterPath() : T::shape();
    }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override
    {
        unscalePenWidth(painter, ZelScaleMethod::Max);
        painter->setRenderHint(QPainter::Antialiasing);
        T::paint(painter, option, widget);
        // Views don't save the painter's state between items.
        painter->setRenderHint(QPainter::Antialiasing, false);
    }

private:
    /// The bounds of what the pen follows.
    QRectF outline() const
    {
        if constexpr (requires(const T &item) { item.line(); })
            return QRectF(this->line().p1(), this->line().p2()).normalized();
        else
            return this->path().controlPointRect();
    }
};
