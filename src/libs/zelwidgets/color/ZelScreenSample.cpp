#include "color/ZelScreenSample.h"

#include <algorithm>
#include <cmath>

namespace {

/// Every scale in steps of a twentieth makes a whole number of pixels of it.
constexpr int grid = 20;

int alignedDown(double place)
{
    return int(std::floor(place / grid)) * grid;
}

} // namespace

ZelScreenSample::ZelScreenSample(const QImage &picture, const QRect &region, const QPointF &place)
    : picture_(picture)
{
    if (picture.isNull() || region.isEmpty())
        return;
    const QPointF inside = place - region.topLeft();
    pixel_ = QPoint(int(std::floor(inside.x() * picture.width() / region.width())),
                    int(std::floor(inside.y() * picture.height() / region.height())));
}

QRect ZelScreenSample::regionAround(const QPointF &place, const QSize &screen, qreal pixelRatio,
                                    int pixels)
{
    const double reach = (pixels / 2 + 1) / std::max(pixelRatio, 0.1);
    const QPoint first(alignedDown(place.x() - reach), alignedDown(place.y() - reach));
    const QPoint last(alignedDown(place.x() + reach) + grid - 1,
                      alignedDown(place.y() + reach) + grid - 1);
    return QRect(first, last).intersected(QRect(QPoint(0, 0), screen));
}

QColor ZelScreenSample::color() const
{
    return isNull() ? QColor() : QColor(picture_.pixel(pixel_));
}

QImage ZelScreenSample::cutOut(int pixels) const
{
    QImage part(pixels, pixels, QImage::Format_ARGB32);
    part.fill(Qt::transparent);
    const QPoint corner = pixel_ - QPoint(pixels / 2, pixels / 2);
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            const QPoint from = corner + QPoint(x, y);
            if (picture_.rect().contains(from))
                part.setPixel(x, y, picture_.pixel(from) | 0xff000000);
        }
    }
    return part;
}
