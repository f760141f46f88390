#include "color/ZelCheckerBrush.h"

#include <QColor>
#include <QPainter>

#include <cmath>

namespace {

constexpr int tile = 6;
constexpr QRgb light = 0xffcccccc;
constexpr QRgb dark = 0xff999999;

} // namespace

QImage ZelCheckerBrush::checker(const QSize &size, qreal pixelRatio)
{
    const QSize pixels(int(std::ceil(size.width() * pixelRatio)),
                       int(std::ceil(size.height() * pixelRatio)));
    QImage image(pixels, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    image.setDevicePixelRatio(pixelRatio);
    image.fill(light);
    QPainter painter(&image);
    for (int y = 0; y < size.height(); y += tile) {
        for (int x = y / tile % 2 * tile; x < size.width(); x += 2 * tile)
            painter.fillRect(x, y, tile, tile, QColor(dark));
    }
    return image;
}

QBrush ZelCheckerBrush::under(const QColor &color, const QSize &size, qreal pixelRatio)
{
    QImage image = checker(size, pixelRatio);
    if (image.isNull())
        return {};
    QPainter painter(&image);
    painter.fillRect(QRect(QPoint(0, 0), size), color);
    painter.end();
    // Textures are laid pixel by pixel, whatever their ratio.
    image.setDevicePixelRatio(1);
    QBrush brush(image);
    brush.setTransform(QTransform::fromScale(1 / pixelRatio, 1 / pixelRatio));
    return brush;
}
