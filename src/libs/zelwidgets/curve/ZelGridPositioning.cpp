#include "ZelGridPositioning.h"

#include "ZelGridLines.h"

#include <ZelCore/ZelSoftAssert>

#include <QRectF>
#include <QTransform>

#include <cmath>

namespace {

constexpr const char *sourcePath = "src/libs/zelwidgets/curve/ZelCurveViewDecorator2";

} // namespace

ZelGridPositioning::~ZelGridPositioning() = default;

ZelGridEqualPositioning::ZelGridEqualPositioning(double xSpacing, double ySpacing)
    : xSpacing_(xSpacing)
    , ySpacing_(ySpacing)
{}

std::pair<std::vector<float>, std::vector<float>>
ZelGridEqualPositioning::linePositions(QRectF const &rect, QTransform const &) const
{
    return {ZelGridLines::positions(rect.left(), rect.right(), xSpacing_),
            ZelGridLines::positions(rect.top(), rect.bottom(), ySpacing_)};
}

ZelGridResizingPositioning::ZelGridResizingPositioning() = default;

void ZelGridResizingPositioning::setSpacingFactorX(double factor)
{
    if (ZEL_SOFT_ASSERT(factor > 0.0, "factor > 0.0", "setSpacingFactorX", sourcePath, 89))
        spacingFactorX_ = factor;
}

void ZelGridResizingPositioning::setSpacingFactorY(double factor)
{
    if (ZEL_SOFT_ASSERT(factor > 0.0, "factor > 0.0", "setSpacingFactorY", sourcePath, 97))
        spacingFactorY_ = factor;
}

void ZelGridResizingPositioning::setMinSceneWidth(double minSceneWidth)
{
    if (ZEL_SOFT_ASSERT(minSceneWidth > 0.0, "minSceneWidth > 0.0", "setMinSceneWidth", sourcePath,
                        105))
        minSceneWidth_ = minSceneWidth;
}

void ZelGridResizingPositioning::setMinSceneHeight(double minSceneHeight)
{
    if (ZEL_SOFT_ASSERT(minSceneHeight > 0.0, "minSceneHeight > 0.0", "setMinSceneHeight",
                        sourcePath, 113))
        minSceneHeight_ = minSceneHeight;
}

void ZelGridResizingPositioning::setMinPixelWidth(unsigned int minPixelWidth)
{
    if (ZEL_SOFT_ASSERT(minPixelWidth > 0U, "minPixelWidth > 0u", "setMinPixelWidth", sourcePath,
                        121))
        minPixelWidth_ = minPixelWidth;
}

void ZelGridResizingPositioning::setMinPixelHeight(unsigned int minPixelHeight)
{
    if (ZEL_SOFT_ASSERT(minPixelHeight > 0U, "minPixelHeight > 0u", "setMinPixelHeight", sourcePath,
                        129))
        minPixelHeight_ = minPixelHeight;
}

std::pair<std::vector<float>, std::vector<float>>
ZelGridResizingPositioning::linePositions(QRectF const &rect, QTransform const &transform) const
{
    std::vector<float> xs = xPositions(rect, transform);
    return {std::move(xs), yPositions(rect, transform)};
}

std::vector<float> ZelGridResizingPositioning::xPositions(QRectF const &rect,
                                                          QTransform const &transform) const
{
    const double step =
        spacing(rect.width(), transform.m11() * rect.width(), minSceneWidth_, minPixelWidth_) *
        spacingFactorX_;
    return positions(rect.left(), rect.right(), step);
}

std::vector<float> ZelGridResizingPositioning::yPositions(QRectF const &rect,
                                                          QTransform const &transform) const
{
    // Without its sign: views have y point up.
    const double step = spacing(rect.height(), std::abs(transform.m22()) * rect.height(),
                                minSceneHeight_, minPixelHeight_) *
                        spacingFactorY_;
    return positions(rect.top(), rect.bottom(), step);
}

double ZelGridResizingPositioning::spacing(double sceneSize, double viewSize, double minSceneSize,
                                           double minViewSize)
{
    constexpr const char *function = "spacing";
    if (!ZEL_SOFT_ASSERT(sceneSize > 0.0, "sceneSize > 0.0", function, sourcePath, 184) ||
        !ZEL_SOFT_ASSERT(viewSize > 0.0, "viewSize > 0.0", function, sourcePath, 185) ||
        !ZEL_SOFT_ASSERT(minSceneSize > 0.0, "minSceneSize > 0.0", function, sourcePath, 186) ||
        !ZEL_SOFT_ASSERT(minViewSize > 0.0, "minViewSize > 0.0", function, sourcePath, 187))
        return -1.0;
    return ZelGridLines::spacing(sceneSize, viewSize, minSceneSize, minViewSize);
}

std::vector<float> ZelGridResizingPositioning::positions(double from, double to, double spacing)
{
    constexpr const char *function = "positions";
    const bool rightWay = ZEL_SOFT_ASSERT(to > from, "to > from", function, sourcePath, 163);
    const bool advances = ZEL_SOFT_ASSERT(spacing > 0, "spacing > 0", function, sourcePath, 164);
    if (!rightWay || !advances)
        return {};
    return ZelGridLines::positions(from, to, spacing);
}
