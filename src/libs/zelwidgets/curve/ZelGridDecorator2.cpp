#include "ZelGridDecorator2.h"

#include <ZelCore/ZelSoftAssert>
#include <ZelWidgets/ZelGridPositioning>
#include <ZelWidgets/ZelPenScaling>

#include <QPainter>

#include <utility>

namespace {

constexpr const char *sourcePath = "src/libs/zelwidgets/curve/ZelCurveViewDecorator2";

} // namespace

ZelGridDecorator2::ZelGridDecorator2()
    : positioning_(std::make_unique<ZelGridEqualPositioning>(1.0, 1.0))
{}

ZelGridDecorator2::~ZelGridDecorator2() = default;

void ZelGridDecorator2::setPen(QPen pen)
{
    pen_ = std::move(pen);
}

void ZelGridDecorator2::setPositioning(std::unique_ptr<ZelGridPositioning> positioning)
{
    if (ZEL_SOFT_ASSERT(positioning != nullptr, "positioning != nullptr", "setPositioning",
                        sourcePath, 213))
        positioning_ = std::move(positioning);
}

void ZelGridDecorator2::paint(QPainter &painter, QRectF const &rect, QTransform const &transform)
{
    if (!ZEL_SOFT_ASSERT(positioning_ != nullptr, "positioning_ != nullptr", "paint", sourcePath,
                         221))
        return;
    const auto [xs, ys] = positioning_->linePositions(rect, transform);
    painter.setPen(pen_);
    unscalePenWidth(&painter, ZelScaleMethod::X);
    QList<QLineF> lines;
    lines.reserve(qsizetype(xs.size()));
    for (const float x : xs)
        lines.append(QLineF(x, rect.bottom(), x, rect.top()));
    painter.drawLines(lines);
    painter.setPen(pen_);
    unscalePenWidth(&painter, ZelScaleMethod::Y);
    lines.clear();
    for (const float y : ys)
        lines.append(QLineF(rect.left(), y, rect.right(), y));
    painter.drawLines(lines);
}
