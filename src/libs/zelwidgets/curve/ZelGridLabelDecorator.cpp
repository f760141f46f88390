#include "ZelGridLabelDecorator.h"

#include "curve/ZelSceneItem.h"
#include "curve/ZelSceneNumbers.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelWidgets/ZelGridPositioning>

#include <QBrush>
#include <QFontMetrics>
#include <QGraphicsSimpleTextItem>

#include <algorithm>
#include <utility>

/// A number of the grid.
class ZelGridLabelItem : public QGraphicsSimpleTextItem, public ZelSceneItem
{
public:
    using QGraphicsSimpleTextItem::QGraphicsSimpleTextItem;
};

namespace {

constexpr const char *sourcePath = "src/libs/zelwidgets/curve/ZelCurveViewDecorator2";

/// More labels than find a place side by side on any screen are thinned out, so that a grid far
/// too fine costs no more than a full screen of labels.
constexpr size_t mostLabels = 2000;

/// A font of the size of labels. Small fonts, and those whose size is in pixels, stay as they are.
QFont labelFont(QFont font)
{
    constexpr double leastToShrink = 10.0;
    constexpr double largest = 13.0;
    const double size = font.pointSizeF();
    if (size >= leastToShrink)
        font.setPointSizeF(std::min(size * 0.75, largest));
    return font;
}

size_t labelStride(const std::vector<float> &positions)
{
    return positions.size() / mostLabels + 1;
}

} // namespace

ZelGridLabelDecorator::ZelGridLabelDecorator()
    : positioning_(std::make_unique<ZelGridEqualPositioning>(1.0, 1.0))
{
    readFont();
}

ZelGridLabelDecorator::~ZelGridLabelDecorator() = default;

void ZelGridLabelDecorator::setPositioning(std::unique_ptr<ZelGridPositioning> positioning)
{
    if (ZEL_SOFT_ASSERT(positioning != nullptr, "positioning != nullptr", "setPositioning",
                        sourcePath, 342))
        positioning_ = std::move(positioning);
}

void ZelGridLabelDecorator::setLabelColor(QColor const &color)
{
    labelColor_ = color;
}

void ZelGridLabelDecorator::setZOrderVerticalLabels(double z)
{
    zVertical_ = z;
}

void ZelGridLabelDecorator::setZOrderHorizontalLabels(double z)
{
    zHorizontal_ = z;
}

void ZelGridLabelDecorator::setScene(QGraphicsScene *scene)
{
    if (scene != scene_)
        labels_.clear();
    scene_ = scene;
}

void ZelGridLabelDecorator::updateItems(QRectF visibleArea, QTransform sceneToView)
{
    const auto [xs, ys] = positioning_->linePositions(visibleArea, sceneToView);
    if (!ZEL_SOFT_ASSERT(!scene_.isNull(), "!scene_.isNull()", "updateItems", sourcePath, 290))
        return;
    labels_.clear();
    readFont();
    addTimes(xs, visibleArea.top(), sceneToView);
    addValues(ys, visibleArea.left(), sceneToView);
}

void ZelGridLabelDecorator::readFont()
{
    font_ = QGraphicsSimpleTextItem().font();
    fontHeight_ = QFontMetrics(font_).height();
}

void ZelGridLabelDecorator::addTimes(const std::vector<float> &xs, double top,
                                     const QTransform &sceneToView)
{
    // In a view whose y points up this is one line above the bottom.
    const double y = top - zelSceneLength(fontHeight_, sceneToView.m22());
    const size_t stride = labelStride(xs);
    for (size_t i = 0; i < xs.size(); i += stride) {
        ZelGridLabelItem *label =
            addLabel(QString::number(double(xs[i]), 'g', 3) + QLatin1Char('s'), zHorizontal_);
        const double width = zelSceneLength(label->boundingRect().width(), sceneToView.m11());
        label->setPos(double(xs[i]) - std::abs(width) * 0.5, y);
    }
}

void ZelGridLabelDecorator::addValues(const std::vector<float> &ys, double left,
                                      const QTransform &sceneToView)
{
    const size_t stride = labelStride(ys);
    for (size_t i = 0; i < ys.size(); i += stride) {
        ZelGridLabelItem *label = addLabel(QString::number(double(ys[i]), 'g', 3), zVertical_);
        const double height = zelSceneLength(label->boundingRect().height(), sceneToView.m22());
        label->setPos(left, std::abs(height) * 0.5 + double(ys[i]));
    }
}

ZelGridLabelItem *ZelGridLabelDecorator::addLabel(const QString &text, double z)
{
    auto label = std::make_unique<ZelGridLabelItem>(text);
    label->setFont(labelFont(font_));
    label->setFlag(QGraphicsItem::ItemIgnoresTransformations);
    label->setZValue(z);
    label->setBrush(QBrush(labelColor_, Qt::SolidPattern));
    ZelGridLabelItem *item = label.get();
    scene_->addItem(item);
    labels_.emplace_back(std::move(label));
    return item;
}
