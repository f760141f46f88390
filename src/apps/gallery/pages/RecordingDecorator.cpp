#include "RecordingDecorator.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double lineWidth = 4.0;

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
    pen_.setJoinStyle(Qt::RoundJoin);
    Q_EMIT updated();
}

/// Paints what the rectangle shows, with a sample on either side.
void RecordingDecorator::paint(QPainter &painter, QRectF const &rect, QTransform const &transform)
{
    // The line is wider than the points that it goes through.
    const double margin = transform.m11() == 0.0 ? 0.0 : lineWidth / std::abs(transform.m11());
    const auto isBefore = [](const QPointF &sample, double x) {
        return sample.x() < x;
    };
    auto first =
        std::lower_bound(samples_.cbegin(), samples_.cend(), rect.left() - margin, isBefore);
    auto last = std::lower_bound(first, samples_.cend(), rect.right() + margin, isBefore);
    if (first != samples_.cbegin())
        --first;
    if (last != samples_.cend())
        ++last;
    // A cosmetic pen counts the pixels of the device.
    QPen pen = pen_;
    pen.setWidthF(lineWidth * painter.device()->devicePixelRatioF());
    painter.setPen(pen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPolyline(samples_.constData() + (first - samples_.cbegin()), int(last - first));
}
