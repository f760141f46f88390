#include "ZelGridRulerDecorator.h"

#include "curve/QRulerRectItem.h"
#include "curve/ZelSceneNumbers.h"

#include <ZelCore/ZelSoftAssert>

#include <QBrush>
#include <QPen>

#include <cmath>

namespace {

constexpr const char *sourcePath = "src/libs/zelwidgets/curve/ZelCurveViewDecorator2";

} // namespace

ZelGridRulerDecorator::ZelGridRulerDecorator()
    : ruler_(std::make_unique<ZelSceneItemOwner<QRulerRectItem>>())
{}

ZelGridRulerDecorator::~ZelGridRulerDecorator() = default;

void ZelGridRulerDecorator::setColor(QColor const &color)
{
    color_ = color;
}

void ZelGridRulerDecorator::setBorderColor(QColor const &color)
{
    borderColor_ = color;
}

void ZelGridRulerDecorator::setBorderWidth(double width)
{
    borderWidth_ = width;
}

void ZelGridRulerDecorator::setHeight(double height)
{
    height_ = height;
}

void ZelGridRulerDecorator::setZOrder(double z)
{
    zOrder_ = z;
}

void ZelGridRulerDecorator::setScene(QGraphicsScene *scene)
{
    if (scene != scene_)
        ruler_ = std::make_unique<ZelSceneItemOwner<QRulerRectItem>>();
    scene_ = scene;
}

void ZelGridRulerDecorator::updateItems(QRectF visibleArea, QTransform sceneToView)
{
    if (!ZEL_SOFT_ASSERT(!scene_.isNull(), "!scene_.isNull()", "updateItems", sourcePath, 422))
        return;
    if (!*ruler_)
        makeGraphicalRuler();
    // The view's edges can be scrolled for a moment: the band reaches beyond them.
    constexpr double beyond = 1.0;
    const double height = zelSceneLength(height_, std::abs(sceneToView.m22()));
    (*ruler_)->setRect(visibleArea.left() - beyond, visibleArea.top(),
                       visibleArea.width() + 2 * beyond, height);
}

void ZelGridRulerDecorator::makeGraphicalRuler()
{
    auto item = std::make_unique<QRulerRectItem>(this);
    item->setZValue(zOrder_);
    item->setBrush(QBrush(color_, Qt::SolidPattern));
    QPen pen(borderColor_, borderWidth_);
    pen.setCosmetic(true);
    item->setPen(pen);
    scene_->addItem(item.get());
    *ruler_ = ZelSceneItemOwner<QRulerRectItem>(std::move(item));
}
