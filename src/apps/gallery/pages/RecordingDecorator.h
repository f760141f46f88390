#pragma once

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QList>
#include <QPen>
#include <QPointF>

/// Draws the samples of a recording as a line behind the curves.
class RecordingDecorator : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    /// Sorted by x.
    void setSamples(const QList<QPointF> &samples);
    void setColor(const QColor &color);
    void paint(QPainter &painter, QRectF const &rect, QTransform const &transform) override;

private:
    QList<QPointF> samples_;
    QPen pen_;
};
