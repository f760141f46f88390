#include "ZelTimeMarkerDecorator.h"

#include "curve/ZelSceneNumbers.h"
#include "curve/ZelTimeMarkerItem.h"

#include <ZelCore/ZelSoftAssert>

#include <QDebug>

#include <cmath>
#include <utility>

namespace {

constexpr const char *sourcePath = "src/libs/zelwidgets/curve/ZelCurveViewDecorator2";

/// In a view of these bounds, in pixels.
QPolygonF triangle(ZelTimeMarkerDecorator::TrianglePosition position, const QRectF &view)
{
    constexpr double size = 10;
    const double middle = view.center().y();
    const QPointF above(0, middle - size);
    const QPointF below(0, middle + size);
    switch (position) {
    case ZelTimeMarkerDecorator::TrianglePosition::Left:
        return QPolygonF({QPointF(-size, middle), above, below});
    case ZelTimeMarkerDecorator::TrianglePosition::Right:
        return QPolygonF({QPointF(size, middle), above, below});
    case ZelTimeMarkerDecorator::TrianglePosition::Bottom:
        break;
    }
    return QPolygonF({QPointF(0, view.bottom() - size), QPointF(-size, view.bottom()),
                      QPointF(size, view.bottom())});
}

QPen mitred(QPen pen)
{
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

} // namespace

struct ZelTimeMarkerDecorator::Items
{
    ZelSceneItemOwner<TimeMarkerItem> top;
    ZelSceneItemOwner<TimeMarkerItem> bottom;
};

ZelTimeMarkerDecorator::ZelTimeMarkerDecorator(TrianglePosition trianglePosition)
    : trianglePosition_(trianglePosition)
    , items_(std::make_unique<Items>())
{
    using Owner = ZelSceneItemOwner<TimeMarkerItem>;
    items_->top = Owner(std::make_unique<TimeMarkerItem>(this));
    items_->bottom = Owner(std::make_unique<TimeMarkerItem>(this));
}

ZelTimeMarkerDecorator::~ZelTimeMarkerDecorator() = default;

ZelTimeMarkerDecorator::SceneState ZelTimeMarkerDecorator::sceneState() const
{
    if (!sceneWasSet_)
        return NoSceneSet;
    return scene_ ? SceneValid : SceneDeletedExternally;
}

bool ZelTimeMarkerDecorator::isUsable(const char *function, int line) const
{
    return ZEL_SOFT_ASSERT(sceneState() != SceneDeletedExternally,
                           "sceneState() != SceneDeletedExternally", function, sourcePath, line);
}

void ZelTimeMarkerDecorator::setScene(QGraphicsScene *scene)
{
    constexpr const char *function = "setScene";
    if (!ZEL_SOFT_ASSERT(scene != nullptr, "scene != nullptr", function, sourcePath, 640) ||
        !ZEL_SOFT_ASSERT(sceneState() == NoSceneSet, "sceneState() == NoSceneSet", function,
                         sourcePath, 643))
        return;
    scene_ = scene;
    for (TimeMarkerItem *item : items())
        scene->addItem(item);
    sceneWasSet_ = true;
}

void ZelTimeMarkerDecorator::updateItems(QRectF visibleArea, QTransform sceneToView)
{
    if (!ZEL_SOFT_ASSERT(sceneState() == SceneValid, "sceneState() == SceneValid", "updateItems",
                         sourcePath, 696))
        return;
    const QRectF view = sceneToView.mapRect(visibleArea);
    const QLineF line(0, view.bottom(), 0, view.top());
    const QPolygonF shape = triangle(trianglePosition_, view);
    const double split = view.bottom() - splitHeight_;
    for (TimeMarkerItem *item : items()) {
        item->setShapes(line, shape);
        QRectF bounds = item->childBounds();
        if (item == items_->top.get())
            bounds.setBottom(split);
        else
            bounds.setTop(split);
        item->setBounds(bounds);
    }
}

void ZelTimeMarkerDecorator::setPosition(double position)
{
    if (!isUsable("setPosition", 730) || position == position_)
        return;
    if (!std::isfinite(position)) {
        qWarning() << "Time marker: not a position:" << position;
        return;
    }
    position_ = position;
    for (TimeMarkerItem *item : items())
        item->setPos(position, 0);
    Q_EMIT markerPositionChanged(zelSceneFloat(position));
}

void ZelTimeMarkerDecorator::setPen(QPen pen)
{
    if (!isUsable("setPen", 745))
        return;
    pen_ = mitred(std::move(pen));
    applyPen(pen_);
}

void ZelTimeMarkerDecorator::setHoverPen(QPen pen)
{
    if (isUsable("setHoverPen", 758))
        hoverPen_ = mitred(std::move(pen));
}

void ZelTimeMarkerDecorator::setUseHoverPen(bool use)
{
    if (isUsable("setUseHoverPen", 786))
        applyPen(use ? hoverPen_ : pen_);
}

void ZelTimeMarkerDecorator::setSplitHeight(double height)
{
    splitHeight_ = height;
}

void ZelTimeMarkerDecorator::setZOrderTop(double z)
{
    if (isUsable("setZOrderTop", 768) && items_->top)
        items_->top->setZValue(z);
}

void ZelTimeMarkerDecorator::setZOrderBottom(double z)
{
    if (isUsable("setZOrderBottom", 777) && items_->bottom)
        items_->bottom->setZValue(z);
}

std::vector<ZelTimeMarkerDecorator::TimeMarkerItem *> ZelTimeMarkerDecorator::items() const
{
    std::vector<TimeMarkerItem *> alive;
    for (const auto *owner : {&items_->top, &items_->bottom}) {
        if (*owner)
            alive.push_back(owner->get());
    }
    return alive;
}

void ZelTimeMarkerDecorator::applyPen(const QPen &pen)
{
    for (TimeMarkerItem *item : items())
        item->setPen(pen);
}
