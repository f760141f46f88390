#include "ZelSplashPainting.h"

#include <algorithm>

namespace ZelSplashPainting {

namespace {
constexpr qint64 leastTime = 1000;
constexpr qint64 closingTime = 1050;
} // namespace

float clampedProgress(float progress)
{
    return progress > 0.0F ? std::min(progress, 1.0F) : 0.0F;
}

QRectF filledPart(float progress)
{
    const QRectF part(1, 1, barSize.width() * clampedProgress(progress) - 1, barSize.height() - 1);
    return part.width() > 0 ? part : QRectF();
}

QString legalLine(const QString &line, int year)
{
    return QString(line).replace(QLatin1String("%1"), QString::number(year));
}

int remainingTime(qint64 elapsed)
{
    return elapsed >= leastTime ? 0 : int(closingTime - std::max<qint64>(elapsed, 0));
}

} // namespace ZelSplashPainting
