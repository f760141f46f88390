#include "color/ZelColorDialogPlacement.h"

#include <QScreen>

#include <cmath>

namespace ZelColorDialogPlacement {
namespace {

constexpr qreal fallbackDensity = 96;
constexpr qreal firstGrowth = 1.25;
constexpr int rightMargin = 10;
constexpr int bottomMargin = 40;
constexpr int titleBarHeight = 30;
/// More than any screen, and well inside of what a window may have.
constexpr qreal largest = 32000;

qreal usable(qreal density)
{
    return std::isfinite(density) && density > 0 ? density : fallbackDensity;
}

bool isUsable(QSizeF size)
{
    return std::isfinite(size.width()) && std::isfinite(size.height()) && !size.isEmpty();
}

} // namespace

Density densityOf(const QScreen *screen)
{
    if (!screen)
        return {fallbackDensity, fallbackDensity};
    return {usable(screen->physicalDotsPerInchX()), usable(screen->physicalDotsPerInchY())};
}

QSizeF toInches(QSize pixels, Density density)
{
    return {pixels.width() / density.x, pixels.height() / density.y};
}

QSize windowSize(QSizeF inches, Density density, QSize hint, QSize area)
{
    if (!isUsable(inches)) {
        const QSize grown(qRound(hint.width() * firstGrowth), qRound(hint.height() * firstGrowth));
        const QSize room = area - QSize(rightMargin, titleBarHeight + bottomMargin);
        const bool fits = hint.expandedTo(room) == room;
        return fits ? grown.boundedTo(room) : grown;
    }
    const QSizeF pixels(inches.width() * density.x, inches.height() * density.y);
    QSize size = pixels.boundedTo({largest, largest}).toSize();
    if (!area.isEmpty())
        size = size.boundedTo(area);
    return size.expandedTo(hint);
}

QPoint keptOn(const QRect &area, const QRect &window)
{
    QPoint place = window.topLeft();
    if (area.isNull())
        return place;
    if (window.right() > area.right())
        place.rx() -= window.right() - area.right() + rightMargin;
    if (window.bottom() > area.bottom())
        place.ry() -= window.bottom() - area.bottom() + bottomMargin;
    // Screens above the first one have their own top.
    place.setY(qMax(place.y(), qMin(area.top(), 0) + titleBarHeight));
    return place;
}

} // namespace ZelColorDialogPlacement
