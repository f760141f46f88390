#include "gradient/ZelGradientGeometry.h"

#include <algorithm>

namespace {

constexpr int margin = 8;
constexpr int bandBelow = 25;
constexpr int bandAbove = 25;
constexpr int noBand = 1;
constexpr float nearEnd = 0.75f;
constexpr float farEnd = 0.25f;

} // namespace

ZelGradientGeometry::ZelGradientGeometry(const QRect &bar)
    : bar_(bar)
{}

ZelGradientGeometry::ZelGradientGeometry(const QSize &widget, bool hasAlpha)
    : bar_(QPoint(margin, hasAlpha ? bandAbove : noBand),
           QPoint(widget.width() - margin, widget.height() - bandBelow))
{}

int ZelGradientGeometry::pixelOf(float location) const
{
    return qRound(float(bar_.left()) + float(bar_.width()) * location);
}

float ZelGradientGeometry::locationOf(int pixel) const
{
    return bar_.width() > 0 ? float(pixel - bar_.left()) / float(bar_.width()) : 0.0f;
}

QPoint ZelGradientGeometry::handleOf(float location, bool isAlpha) const
{
    return {pixelOf(location),
            isAlpha ? bar_.top() - handleDistance : bar_.bottom() + handleDistance};
}

QRect ZelGradientGeometry::handleRect(float location, bool isAlpha) const
{
    const QPoint center = handleOf(location, isAlpha);
    return {center - QPoint(reach, reach), QSize(2 * reach, 2 * reach)};
}

int ZelGradientGeometry::slopePixel(float slope, float selected, float neighbour) const
{
    const float distance = selected - neighbour;
    const float flat = neighbour + distance * farEnd;
    const float steep = neighbour + distance * nearEnd;
    const float part = std::clamp(slope / mostSlope, 0.0f, 1.0f);
    return pixelOf(flat + (steep - flat) * part);
}

float ZelGradientGeometry::slopeAt(int pixel, float selected, float neighbour) const
{
    const float location = locationOf(pixel);
    const float distance = selected - neighbour;
    const float flat = neighbour + distance * farEnd;
    const float steep = neighbour + distance * nearEnd;
    if (steep > flat) {
        if (location <= flat)
            return 0.0f;
        return location >= steep ? mostSlope : (location - flat) / (steep - flat) * mostSlope;
    }
    if (location <= steep)
        return mostSlope;
    return location >= flat ? 0.0f : mostSlope - mostSlope * (location - steep) / (flat - steep);
}
