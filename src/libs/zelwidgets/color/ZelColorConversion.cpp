#include "color/ZelColorConversion.h"

#include <ZelCore/ZelGammaPolicy>

#include <algorithm>

namespace {

float clamped(float channel)
{
    return channel > 0.0f ? std::min(channel, 1.0f) : 0.0f;
}

} // namespace

QColor toQColor(const ZelColor &color)
{
    const auto [red, green, blue] = color.toRGB();
    return QColor::fromRgbF(clamped(red), clamped(green), clamped(blue));
}

QColor toDisplayQColor(const ZelColor &color)
{
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    return toQColor(policy->isGammaCorrectionEnabled() ? policy->gammaCorrect(color) : color);
}

ZelColor fromQColor(const QColor &color, const QString &name)
{
    ZelColor result(ZelColor::Space::RGB, color.redF(), color.greenF(), color.blueF());
    result.setName(name.toStdString());
    return result;
}
