#include "ZelTrianglePainting.h"

#include "ZelSpectrumMath.h"
#include "ZelTriangleFill.h"
#include "ZelTriangleGeometry.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace {

// QPainter counts arcs in sixteenths of a degree.
constexpr int arcTurn = 5760;
constexpr int arcStep = 20;
constexpr int arcTop = 1440;
constexpr int darkestArc = 1800;

QColor pureColor(int hue)
{
    return QColor::fromHsv(hue, 255, 255);
}

QPen flatPen(const QColor &color, double width)
{
    return QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QRectF circle(QPointF center, double radius)
{
    return {center.x() - radius, center.y() - radius, 2 * radius + 1, 2 * radius + 1};
}

QConicalGradient hueGradient(QPointF center)
{
    QConicalGradient gradient(center, 90);
    QGradientStops stops;
    for (int degree = 0; degree <= 360; ++degree)
        stops.append({degree / 360.0, QColor::fromHsvF(1.0F - float(degree) / 360.0F, 1, 1)});
    gradient.setStops(stops);
    return gradient;
}

/// A fine line along both edges of the ring that is light on one side and dark on the other.
void drawRims(QPainter &painter, const QRectF &inner, const QRectF &outer, double width)
{
    for (int i = 0; i < arcTurn; i += arcStep) {
        const double turn = double(i - darkestArc) / arcTurn * 2 * std::numbers::pi;
        const int shade = int((std::cos(turn) * 0.5 + 0.5) * 255);
        const int hue = int(double(i) / arcTurn * 360);
        painter.setPen(
            flatPen(QColor::fromHsv(hue, (255 - shade) / 2 + 128, 255 - (255 - shade) / 4), width));
        painter.drawArc(inner, arcTop - i, arcStep);
        painter.setPen(flatPen(QColor::fromHsv(hue, shade / 2 + 128, 255 - shade / 4), width));
        painter.drawArc(outer, arcTop - i, arcStep);
    }
}

void drawMarker(QPainter &painter, const QColor &ground, QPointF center, double diameter,
                double penWidth)
{
    painter.setPen(flatPen(ZelSpectrumMath::markerColor(ground), penWidth));
    painter.drawEllipse(center, diameter / 2, diameter / 2);
}

} // namespace

void ZelTrianglePainting::drawRing(QImage &image, const ZelTriangleGeometry &geometry)
{
    const QRectF inner = circle(geometry.center(), geometry.innerRadius());
    const QRectF outer = circle(geometry.center(), geometry.outerRadius());
    QPainterPath ring;
    ring.addEllipse(inner);
    ring.addEllipse(outer);
    const QRectF whole(QPointF(0, 0), image.deviceIndependentSize());

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipPath(ring);
    painter.fillRect(whole, hueGradient(geometry.center()));
    painter.restore();
    drawRims(painter, inner, outer, whole.width() / 400);
}

void ZelTrianglePainting::drawTriangle(QImage &image, const ZelTriangleGeometry &geometry, int hue)
{
    const double ratio = image.devicePixelRatio();
    ZelTriangleFill::fill(image, {{{geometry.pointA() * ratio, pureColor(hue).rgb()},
                                   {geometry.pointB() * ratio, qRgb(0, 0, 0)},
                                   {geometry.pointC() * ratio, qRgb(255, 255, 255)}}});
}

void ZelTrianglePainting::drawMarkers(QPaintDevice *device, const ZelTriangleGeometry &geometry,
                                      int hue, const QColor &color, QPointF selector)
{
    QPainter painter(device);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(flatPen(QColor(0, 0, 0, 128), geometry.penWidth()));
    painter.drawLine(geometry.pointA(), geometry.pointB());
    painter.drawLine(geometry.pointB(), geometry.pointC());
    painter.drawLine(geometry.pointC(), geometry.pointA());
    drawMarker(painter, pureColor(hue), geometry.huePoint(), geometry.markerSize(),
               geometry.penWidth());
    drawMarker(painter, color, selector, geometry.markerSize() + 0.5, geometry.penWidth());
}
