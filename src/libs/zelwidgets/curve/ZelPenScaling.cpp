#include "ZelPenScaling.h"

#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

double scaleOf(const QTransform &transform, ZelScaleMethod method)
{
    const double x = std::abs(transform.m11());
    const double y = std::abs(transform.m22());
    switch (method) {
    case ZelScaleMethod::X:
        return x;
    case ZelScaleMethod::Y:
        return y;
    case ZelScaleMethod::Min:
        return std::min(x, y);
    case ZelScaleMethod::Max:
        break;
    }
    return std::max(x, y);
}

} // namespace

void unscalePenWidth(QPainter *painter, ZelScaleMethod method)
{
    QPen pen = painter->pen();
    if (pen.isCosmetic())
        return;
    const double scale = scaleOf(painter->transform(), method);
    // Also true of scales that are not numbers.
    if (!(scale * pen.widthF() >= 1.0))
        pen.setCosmetic(true);
    else
        pen.setWidthF(pen.widthF() / scale);
    painter->setPen(pen);
}
