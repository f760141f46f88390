#include "ZelGammaPolicy.h"

#include "ZelSettings.h"

#include <QDebug>

#include <cmath>

namespace {

bool storedSwitch(const QString &key)
{
    const QVariant stored = ZelSettings(QStringLiteral("colors")).value(key);
    return stored.typeId() == QMetaType::Bool ? stored.toBool() : true;
}

float raised(float channel, float exponent)
{
    return std::copysign(std::pow(std::abs(channel), exponent), channel);
}

ZelColor raised(const ZelColor &color, float exponent)
{
    const auto [red, green, blue] = color.toRGB();
    ZelColor result(ZelColor::Space::RGB, raised(red, exponent), raised(green, exponent),
                    raised(blue, exponent));
    result.setName(color.name());
    return result;
}

} // namespace

ZelGammaPolicy *ZelGammaPolicy::get()
{
    // Never deleted: widgets that go at the very end of the process may still ask.
    static ZelGammaPolicy *const policy = new ZelGammaPolicy;
    return policy;
}

ZelGammaPolicy::ZelGammaPolicy()
    : enabled_(storedSwitch(QStringLiteral("enable_gamma_correction")))
    , correctValues_(storedSwitch(QStringLiteral("enable_gamma_correction_input")))
{}

ZelColor ZelGammaPolicy::gammaCorrect(const ZelColor &color) const
{
    return raised(color, getInvGamma());
}

ZelColor ZelGammaPolicy::inverseGammaCorrect(const ZelColor &color) const
{
    return raised(color, gamma_);
}

void ZelGammaPolicy::setEnableGammaCorrection(bool enable)
{
    if (enable == enabled_)
        return;
    enabled_ = enable;
    Q_EMIT gammaCorrectChanged(enable);
}

void ZelGammaPolicy::setGammaCorrectValues(bool correct)
{
    if (correct == correctValues_)
        return;
    correctValues_ = correct;
    Q_EMIT gammaCorrectValuesChanged(correct);
}

void ZelGammaPolicy::setGamma(float gamma)
{
    if (!(std::isfinite(gamma) && gamma > 0.0f)) {
        qWarning() << "ZelGammaPolicy: not a gamma:" << gamma;
        return;
    }
    if (gamma == gamma_)
        return;
    gamma_ = gamma;
    Q_EMIT gammaChanged(gamma);
}
