#include "ZelDialAngle.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace {

double mirrored(double angle, const ZelDialAngle::Rule &rule)
{
    return rule.isBackward ? ZelDialAngle::fullTurn - angle : angle;
}

} // namespace

int ZelDialAngle::position(double angle, const Rule &rule)
{
    const double shown = angle <= fullTurn ? angle : std::fmod(angle, fullTurn);
    return std::clamp(qRound(mirrored(shown, rule)), 0, fullTurn);
}

double ZelDialAngle::angle(int position, double before, const Rule &rule)
{
    const double shown = mirrored(position, rule);
    if (!rule.isContinuing)
        return shown;
    return std::max(0.0, shown + fullTurn * std::round((before - shown) / fullTurn));
}

double ZelDialAngle::positive(double angle)
{
    if (angle >= 0)
        return angle;
    const double part = std::fmod(angle, fullTurn);
    return part < 0 ? part + fullTurn : 0;
}
