#include "ZelCurveViewDecorator.h"

#include "ZelFrameDecorator.h"
#include "ZelGridDecorator.h"
#include "ZelLineDecorator.h"

#include <QPainter>

#include <cmath>

namespace {

/// More lines than any screen has pixels are no grid.
constexpr double mostLines = 20000;

/// Calls with each whole multiple of the spacing between the two ends.
template <typename Draw>
void forEachLine(double from, double to, double spacing, const Draw &draw)
{
    if (!(spacing > 0))
        return;
    const double first = std::ceil(from / spacing);
    const double last = std::floor(to / spacing);
    if (!(last - first < mostLines))
        return;
    const int count = int(last - first) + 1;
    for (int i = 0; i < count; ++i)
        draw((first + i) * spacing);
}

} // namespace

ZelCurveViewDecorator::~ZelCurveViewDecorator() = default;

void ZelFrameDecorator::paint(QPainter &painter, const QRectF &rect, const QTransform &transform)
{
    painter.setPen(pen_);
    painter.drawPolygon(transform.map(QPolygonF(rect)));
}

void ZelLineDecorator::setPen(QPen pen)
{
    pen_ = std::move(pen);
}

void ZelLineDecorator::setPosition(double position)
{
    position_ = position;
}

void ZelLineDecorator::paint(QPainter &painter, const QRectF &rect, const QTransform &transform)
{
    if (!(position_ >= rect.left() && position_ <= rect.right()))
        return;
    painter.setPen(pen_);
    painter.drawLine(transform.map(QPointF(position_, rect.top())),
                     transform.map(QPointF(position_, rect.bottom())));
}

ZelGridDecorator::ZelGridDecorator(double xGrid, double yGrid)
    : xGrid_(xGrid)
    , yGrid_(yGrid)
{}

void ZelGridDecorator::setGrid(double xGrid, double yGrid)
{
    xGrid_ = xGrid;
    yGrid_ = yGrid;
}

void ZelGridDecorator::setPen(const QPen &pen)
{
    pen_ = pen;
}

void ZelGridDecorator::setRoundToDecades(bool round)
{
    roundToDecades_ = round;
}

double ZelGridDecorator::computeRoundedGridSize(double size)
{
    return std::pow(10.0, std::floor(std::log10(size) - 0.5));
}

void ZelGridDecorator::paint(QPainter &painter, const QRectF &rect, const QTransform &transform)
{
    if (roundToDecades_)
        setGrid(computeRoundedGridSize(rect.width()), computeRoundedGridSize(rect.height()));
    painter.setPen(pen_);
    forEachLine(rect.left(), rect.right(), xGrid_, [&](double x) {
        painter.drawLine(transform.map(QPointF(x, rect.top())),
                         transform.map(QPointF(x, rect.bottom())));
    });
    forEachLine(rect.top(), rect.bottom(), yGrid_, [&](double y) {
        painter.drawLine(transform.map(QPointF(rect.left(), y)),
                         transform.map(QPointF(rect.right(), y)));
    });
}
