#include "RecordingDecorator.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double lineWidth = 4.0;
/// In pixels, between points of the line.
constexpr double leastDistance = 2.0;

} // namespace

void RecordingDecorator::setSamples(const QList<QPointF> &samples)
{
    samples_ = samples;
    Q_EMIT updated();
}

void RecordingDecorator::setColor(const QColor &color)
{
    pen_ = QPen(color, lineWidth);
    pen_.setCosmetic(true);
    pen_.setJoinStyle(Qt::BevelJoin);
    Q_EMIT updated();
}

/// Paints what the rectangle shows, with a sample on either side. A sample that falls beside the
/// one before on the screen is left out.
void RecordingDecorator::paint(QPainter &painter, QRectF const &rect, QTransform const &transform)
{
    const auto isBefore = [](const QPointF &sample, double x) {
        return sample.x() < x;
    };
    auto sample = std::lower_bound(samples_.cbegin(), samples_.cend(), rect.left(), isBefore);
    auto last = std::lower_bound(sample, samples_.cend(), rect.right(), isBefore);
    if (sample != samples_.cbegin())
        --sample;
    if (last != samples_.cend())
        ++last;
    QPolygonF line;
    for (; sample != last; ++sample) {
        const QPointF way = line.isEmpty() ? QPointF() : *sample - line.last();
        const double distance = std::hypot(way.x() * transform.m11(), way.y() * transform.m22());
        if (line.isEmpty() || distance >= leastDistance || sample + 1 == last)
            line.append(*sample);
    }
    // A cosmetic pen counts the pixels of the device.
    QPen pen = pen_;
    pen.setWidthF(lineWidth * painter.device()->devicePixelRatioF());
    painter.setPen(pen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPolyline(line);
}
