#include "ZelCurveView2.h"

#include "curve/ZelCurveViewMarkers.h"
#include "curve/ZelCurveViewMath.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelWidgets/ZelCurveGraphicsView>
#include <ZelWidgets/ZelCurveScene>

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr char path[] = "src/libs/zelwidgets/curve/ZelCurveView2";
/// Room to show something in before there is a curve.
constexpr QRectF emptySceneRect(-0.2, -24.5, 25.2, 50.0);

} // namespace

ZelCurveView2::ContextAction::~ContextAction() = default;

ZelCurveView2::ZelCurveView2(QWidget *parent)
    : QWidget(parent)
    , scene_(new ZelCurveScene(this))
    , view_(new ZelCurveGraphicsView(scene_, this))
    , style_(std::make_unique<ZelCurveView2Style>())
{
    connect(scene_, &ZelCurveScene::selectionChanged, this, &ZelCurveView2::selectionChanged);
    connect(view_, &ZelCurveGraphicsView::visibleAreaChanged, this,
            &ZelCurveView2::visibleAreaChanged);
    connect(view_, &ZelCurveGraphicsView::dragStarted, this, &ZelCurveView2::dragStarted);
    connect(view_, &ZelCurveGraphicsView::dragEnded, this, &ZelCurveView2::dragEnded);
    connect(view_, &ZelCurveGraphicsView::fitRequested, this, &ZelCurveView2::zoomToFit);
    scene_->setStyle(style_.get());
    scene_->setSceneRect(emptySceneRect);
    view_->setStyle(style_.get());
    connect(this, &ZelCurveView2::styleChanged, scene_, &ZelCurveScene::onStyleUpdated);
    connect(this, &ZelCurveView2::styleChanged, view_, &ZelCurveGraphicsView::onStyleUpdated);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(view_);
    view_->setContentsMargins(0, 0, 0, 0);
    view_->scale(1, -1);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_, &QWidget::customContextMenuRequested, this, &ZelCurveView2::showContextMenu);
    setFocusProxy(view_);
}

/// The decorators go while the scene still is there, and nobody hears of the end.
ZelCurveView2::~ZelCurveView2()
{
    scene_->disconnect(this);
    view_->disconnect(this);
    delete view_;
    delete scene_;
}

void ZelCurveView2::addCurve(ZelCurveModel *model)
{
    scene_->addCurve(model);
}

void ZelCurveView2::removeCurve(ZelCurveModel *model)
{
    scene_->removeCurve(model);
}

void ZelCurveView2::clearCurves()
{
    scene_->clearCurves();
    style_->curveColors.clear();
    style_->curveWidths.clear();
}

void ZelCurveView2::setCurveColor(ZelCurveModel *model, const QColor &color)
{
    remember(model);
    style_->curveColors.insert(model, color);
    Q_EMIT styleChanged();
}

void ZelCurveView2::setCurveWidth(ZelCurveModel *model, float width)
{
    remember(model);
    style_->curveWidths.insert(model, width);
    Q_EMIT styleChanged();
}

void ZelCurveView2::remember(const ZelCurveModel *model)
{
    if (model)
        connect(model, &QObject::destroyed, this, &ZelCurveView2::forget, Qt::UniqueConnection);
}

void ZelCurveView2::forget(const QObject *model)
{
    const auto isModel = [model](const auto entry) {
        return entry.key() == model;
    };
    style_->curveColors.removeIf(isModel);
    style_->curveWidths.removeIf(isModel);
}

ZelCurveView2Style ZelCurveView2::getStyle() const
{
    return *style_;
}

void ZelCurveView2::setStyle(const ZelCurveView2Style *style)
{
    if (!style)
        return;
    *style_ = *style;
    Q_EMIT styleChanged();
}

ZelCurveViewDecorator2 *ZelCurveView2::addDecoratorToBackground(ZelCurveViewDecorator2 *decorator)
{
    view_->addDecoratorToBackground(decorator);
    return decorator;
}

ZelCurveViewDecorator2 *ZelCurveView2::addDecoratorToForeground(ZelCurveViewDecorator2 *decorator)
{
    view_->addDecoratorToForeground(decorator);
    return decorator;
}

void ZelCurveView2::clearDecorators()
{
    view_->clearDecorators();
}

void ZelCurveView2::addContextMenuAction(std::unique_ptr<ContextAction> action)
{
    if (action)
        contextActions_.push_back(std::move(action));
}

std::shared_ptr<ZelCurveModel::ViewTransform> ZelCurveView2::viewTransform() const
{
    return view_->viewTransform();
}

void ZelCurveView2::setVisibleArea(QRectF sceneSection)
{
    if (!ZEL_SOFT_ASSERT(sceneSection.isValid(), "sceneSection.isValid()", "setVisibleArea", path,
                         83))
        return;
    view_->setVisibleArea(sceneSection);
    visibleAreaSet_ = true;
}

QRectF ZelCurveView2::visibleArea() const
{
    return view_->visibleArea();
}

void ZelCurveView2::zoomToFit()
{
    setVisibleArea(ZelCurveViewMath::withAir(scene_->curvesBoundingRect()));
}

void ZelCurveView2::showEvent(QShowEvent *event)
{
    if (!visibleAreaSet_)
        zoomToFit();
    QWidget::showEvent(event);
}

ZelCurveView2::Context ZelCurveView2::contextAt(const QPoint &point) const
{
    const QPointF position = view_->mapToScene(point);
    return {position,
            ZelCurveViewMarkers::pointOf(scene_->itemAt(position, view_->viewportTransform()))};
}

void ZelCurveView2::showContextMenu(const QPoint &point)
{
    const Context context = contextAt(point);
    const QPointer<QMenu> menu = new QMenu(tr("Context Menu"), this);
    for (const auto &action : contextActions_) {
        QAction *entry = menu->addAction(action->text());
        entry->setEnabled(action->isEnabled(context));
        connect(entry, &QAction::triggered, menu,
                [action = action.get(), context] { action->trigger(context); });
    }
    if (!menu->isEmpty())
        menu->exec(mapToGlobal(point));
    // The view may have died with the menu meanwhile.
    delete menu;
}
