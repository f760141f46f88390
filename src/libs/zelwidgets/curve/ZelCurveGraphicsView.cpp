#include "ZelCurveGraphicsView.h"

#include "ZelAccessibleValue.h"
#include "ZelFocusFrame.h"
#include "curve/ZelCurveAccessible.h"
#include "curve/ZelCurveViewDrag.h"
#include "curve/ZelCurveViewMarkers.h"
#include "curve/ZelCurveViewMath.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelWidgets/ZelCurveScene>
#include <ZelWidgets/ZelCurveView2Style>
#include <ZelWidgets/ZelCurveViewDecorator2>
#include <ZelWidgets/ZelDeleteEventFilter>

#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

constexpr char path[] = "src/libs/zelwidgets/curve/ZelCurveGraphicsView";
constexpr QSize usualSize(30, 18);

} // namespace

ZelCurveGraphicsView::ZelCurveGraphicsView(ZelCurveScene *scene, QWidget *parent)
    : QGraphicsView(scene, parent)
    , scene_(scene)
    , markers_(std::make_unique<ZelCurveViewMarkers>())
{
    ZelAccessibleValue::serve<AccessibleCurveMarkers, ZelCurveGraphicsView>();
    setAccessibleName(tr("Curves"));
    // The bars only hold the position.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const auto *deleteFilter = new ZelDeleteEventFilter(this);
    connect(deleteFilter, &ZelDeleteEventFilter::deletePressed, this,
            &ZelCurveGraphicsView::onDelete);
    if (scene) {
        connect(scene, &QGraphicsScene::selectionChanged, this,
                &ZelCurveGraphicsView::announceSelection);
    }
    setAlignment(Qt::AlignLeft);
    setContentsMargins(0, 0, 0, 0);
    setFrameStyle(QFrame::Box);
}

ZelCurveGraphicsView::~ZelCurveGraphicsView()
{
    dragState_.reset();
    clearDecorators();
}

void ZelCurveGraphicsView::setStyle(const ZelCurveView2Style *style)
{
    style_ = style;
}

void ZelCurveGraphicsView::onStyleUpdated()
{
    if (!ZEL_SOFT_ASSERT(style_ != nullptr, "style_ != nullptr", "onStyleUpdated", path, 100))
        return;
    if (isValid())
        updateViewport();
}

std::shared_ptr<ZelCurveModel::ViewTransform> ZelCurveGraphicsView::viewTransform() const
{
    return std::make_shared<ViewTransform>(transform());
}

QSize ZelCurveGraphicsView::sizeHint() const
{
    return usualSize * fontMetrics().height();
}

bool ZelCurveGraphicsView::isValid() const
{
    return isVisible() && effectiveViewport().isValid() && visibleArea_.isValid();
}

bool ZelCurveGraphicsView::isNavigable() const
{
    return style_ && style_->navigable;
}

QRect ZelCurveGraphicsView::fullViewport() const
{
    return viewport()->rect();
}

QRect ZelCurveGraphicsView::effectiveViewport() const
{
    return style_ ? fullViewport().marginsRemoved(style_->viewportMargins) : fullViewport();
}

QRectF ZelCurveGraphicsView::actualVisibleArea() const
{
    return mapToScene(effectiveViewport()).boundingRect();
}

void ZelCurveGraphicsView::setVisibleArea(const QRectF &area)
{
    // Qt compares points and sizes with a tolerance.
    if (area.topLeft() == visibleArea_.topLeft() && area.size() == visibleArea_.size())
        return;
    visibleArea_ = area;
    if (isValid())
        updateViewport();
    Q_EMIT visibleAreaChanged();
}

void ZelCurveGraphicsView::updateViewport()
{
    if (!ZEL_SOFT_ASSERT(isValid(), "isValid()", "updateViewport", path, 178))
        return;
    applyVisibleArea();
    updateDecorators();
    // Scrolled pixels show decorations that belong to the viewport in the wrong place.
    viewport()->update();
}

/// What was achieved counts from now on. As long as nobody wants another area the wish is kept
/// beside it, so that roundings to pixels don't add up while the user resizes a window.
void ZelCurveGraphicsView::applyVisibleArea()
{
    if (visibleArea_ != achievedArea_)
        wishedArea_ = visibleArea_;
    scaleTo(wishedArea_.size());
    setScrollbars(wishedArea_.bottomLeft());
    visibleArea_ = actualVisibleArea();
    achievedArea_ = visibleArea_;
}

/// Scales by relative factors, so that an axis that is turned stays turned.
void ZelCurveGraphicsView::scaleTo(const QSizeF &size)
{
    if (!ZEL_SOFT_ASSERT(size.isValid(), "size.isValid()", "scaleTo", path, 121))
        return;
    const QSize pixels = effectiveViewport().size();
    const QTransform present = transform();
    if (size.isEmpty() || size == actualVisibleArea().size() || pixels.isEmpty() ||
        present.m11() == 0 || present.m22() == 0)
        return;
    const auto factors = ZelCurveViewMath::fittingFactors(present, size, pixels);
    if (!factors)
        return;
    setTransformationAnchor(QGraphicsView::NoAnchor);
    scale(factors->width(), factors->height());
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
}

void ZelCurveGraphicsView::setScrollbars(const QPointF &point)
{
    const QPointF pixel = transform().map(point);
    const QRect area = effectiveViewport();
    const auto setValue = [](QScrollBar *bar, double value) {
        bar->setValue(qRound(std::clamp(value, double(bar->minimum()), double(bar->maximum()))));
    };
    setValue(horizontalScrollBar(), pixel.x() - area.left());
    setValue(verticalScrollBar(), pixel.y() - area.top());
}

void ZelCurveGraphicsView::zoom(float xScale, float yScale, const QPointF &target)
{
    if (xScale == 1.F && yScale == 1.F)
        return;
    if (!ZEL_SOFT_ASSERT(xScale > 0.F && yScale > 0.F, "xScale > 0.f && yScale > 0.f", "zoom", path,
                         431))
        return;
    const QPointF center = ZelCurveViewMath::zoomedCenter(visibleArea_.center(), target,
                                                          double(xScale), double(yScale));
    QRectF zoomed(0, 0, visibleArea_.width() / double(xScale),
                  visibleArea_.height() / double(yScale));
    zoomed.moveCenter(center);
    const QTransform wished = QTransform(transform()).scale(double(xScale), double(yScale));
    if (!ZelCurveViewMath::isReachable(wished, zoomed))
        return;
    QGraphicsView::scale(double(xScale), double(yScale));
    visibleArea_ = actualVisibleArea();
    visibleArea_.moveCenter(center);
    updateViewport();
    Q_EMIT visibleAreaChanged();
}

void ZelCurveGraphicsView::moveVisibleAreaToContain(const QPointF &point)
{
    setVisibleArea(ZelCurveViewMath::movedToContain(visibleArea_, point));
}

void ZelCurveGraphicsView::expandVisibleAreaToContain(const QPointF &point)
{
    setVisibleArea(ZelCurveViewMath::expandedToContain(visibleArea_, point));
}

void ZelCurveGraphicsView::addDecoratorToBackground(ZelCurveViewDecorator2 *decorator)
{
    addDecorator(backgroundDecorators_, decorator, QGraphicsScene::BackgroundLayer);
}

void ZelCurveGraphicsView::addDecoratorToForeground(ZelCurveViewDecorator2 *decorator)
{
    addDecorator(foregroundDecorators_, decorator, QGraphicsScene::ForegroundLayer);
}

void ZelCurveGraphicsView::addDecorator(Decorators &decorators, ZelCurveViewDecorator2 *decorator,
                                        QGraphicsScene::SceneLayer layer)
{
    const auto isKnown = [decorator](const Decorators &list) {
        return std::find(list.begin(), list.end(), decorator) != list.end();
    };
    if (!decorator || isKnown(backgroundDecorators_) || isKnown(foregroundDecorators_))
        return;
    decorator->setScene(scene_);
    decorators.emplace_back(decorator);
    connect(decorator, &ZelCurveViewDecorator2::updated, this, [this, layer] {
        if (scene_)
            scene_->invalidate(scene_->sceneRect(), layer);
    });
    if (isValid())
        updateViewport();
}

void ZelCurveGraphicsView::clearDecorators()
{
    for (Decorators *decorators : {&backgroundDecorators_, &foregroundDecorators_}) {
        for (const auto &decorator : std::exchange(*decorators, {}))
            delete decorator.data();
    }
    viewport()->update();
}

void ZelCurveGraphicsView::updateDecorators()
{
    const QRectF viewportInSceneCoords = mapToScene(fullViewport()).boundingRect();
    if (viewportInSceneCoords.isEmpty())
        return;
    if (!ZEL_SOFT_ASSERT(viewportInSceneCoords.isValid(), "viewportInSceneCoords.isValid()",
                         "updateDecorators", path, 332))
        return;
    Decorators all = backgroundDecorators_;
    all.insert(all.end(), foregroundDecorators_.begin(), foregroundDecorators_.end());
    for (const auto &decorator : all) {
        if (decorator)
            decorator->updateItems(viewportInSceneCoords, transform());
    }
}

void ZelCurveGraphicsView::drawBackground(QPainter *painter, const QRectF &rect)
{
    QGraphicsView::drawBackground(painter, rect);
    paintDecorators(backgroundDecorators_, painter, rect);
}

void ZelCurveGraphicsView::drawForeground(QPainter *painter, const QRectF &rect)
{
    paintDecorators(foregroundDecorators_, painter, rect);
}

/// A part of the viewport is painted as the whole, clipped: decorators paint along the edges.
void ZelCurveGraphicsView::paintDecorators(const Decorators &decorators, QPainter *painter,
                                           const QRectF &rect)
{
    const bool isOnScreen = painter->device() == viewport();
    const QRectF area = isOnScreen ? mapToScene(fullViewport()).boundingRect() : rect;
    for (const auto &decorator : decorators) {
        if (!decorator)
            continue;
        painter->save();
        decorator->paint(*painter, area, transform());
        painter->restore();
    }
}

void ZelCurveGraphicsView::paintEvent(QPaintEvent *event)
{
    QGraphicsView::paintEvent(event);
    if (hasFocus())
        ZelFocusFrame::paint(viewport());
}

void ZelCurveGraphicsView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (isValid())
        updateViewport();
}

void ZelCurveGraphicsView::showEvent(QShowEvent *event)
{
    QGraphicsView::showEvent(event);
    if (isValid())
        updateViewport();
}

void ZelCurveGraphicsView::hideEvent(QHideEvent *event)
{
    endDrag();
    QGraphicsView::hideEvent(event);
}
