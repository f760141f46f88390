#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <utility>
#include <vector>

class QRectF;
class QTransform;

/// Decides where the lines of a grid lie. Grid lines and grid labels ask one each.
class ZELWIDGETS_EXPORT ZelGridPositioning
{
public:
    virtual ~ZelGridPositioning();

    /// The x of the vertical lines, then the y of the horizontal ones, within the rectangle of the
    /// scene that the transform brings to the screen.
    virtual std::pair<std::vector<float>, std::vector<float>>
    linePositions(QRectF const &rect, QTransform const &transform) const = 0;
};

/// Lines at all multiples of a spacing, however far the view is zoomed.
class ZELWIDGETS_EXPORT ZelGridEqualPositioning : public ZelGridPositioning
{
public:
    /// In scene units. An axis whose spacing isn't positive has no lines.
    ZelGridEqualPositioning(double xSpacing, double ySpacing);

    std::pair<std::vector<float>, std::vector<float>>
    linePositions(QRectF const &rect, QTransform const &transform) const override;

private:
    double xSpacing_;
    double ySpacing_;
};

/// Lines at the multiples of the smallest spacing that is wide enough on screen: a whole multiple
/// (1, 2, 3, 4 ...) of the least step, at least the least number of pixels, and all this times a
/// factor.
///
///     auto seconds = std::make_unique<ZelGridResizingPositioning>();
///     seconds->setMinSceneWidth(0.5);
///     seconds->setMinPixelWidth(60);
///     labels->setPositioning(std::move(seconds));
class ZELWIDGETS_EXPORT ZelGridResizingPositioning : public ZelGridPositioning
{
public:
    ZelGridResizingPositioning();

    /// Each setter keeps the old value if the new one isn't positive.
    ///
    /// The least step in scene units, 1 at first.
    void setMinSceneWidth(double minSceneWidth);
    void setMinSceneHeight(double minSceneHeight);
    /// The least distance of lines in pixels, 20 at first.
    void setMinPixelWidth(unsigned int minPixelWidth);
    void setMinPixelHeight(unsigned int minPixelHeight);
    /// Stretches the spacing after it was found, 1 at first.
    void setSpacingFactorX(double factor);
    void setSpacingFactorY(double factor);

    /// An axis along which the rectangle has no extent has no lines, and neither has x if the
    /// transform mirrors it.
    std::pair<std::vector<float>, std::vector<float>>
    linePositions(QRectF const &rect, QTransform const &transform) const override;

private:
    std::vector<float> xPositions(QRectF const &rect, QTransform const &transform) const;
    std::vector<float> yPositions(QRectF const &rect, QTransform const &transform) const;
    static double spacing(double sceneSize, double viewSize, double minSceneSize,
                          double minViewSize);
    static std::vector<float> positions(double from, double to, double spacing);

    double minSceneWidth_ = 1.0;
    double minSceneHeight_ = 1.0;
    unsigned int minPixelWidth_ = 20;
    unsigned int minPixelHeight_ = 20;
    double spacingFactorX_ = 1.0;
    double spacingFactorY_ = 1.0;
};
