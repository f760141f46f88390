#include "ZelAxisSnapping.h"

#include <cstdlib>

ZelAxisSnapping::ZelAxisSnapping(const QPoint &origin, int threshold)
    : origin_(origin)
    , threshold_(threshold)
{}

QPoint ZelAxisSnapping::adjustPosition(const QPoint &position)
{
    if (!axis_) {
        // Far away positions must not overflow.
        const qint64 dx = std::abs(qint64(position.x()) - origin_.x());
        const qint64 dy = std::abs(qint64(position.y()) - origin_.y());
        if (dx + dy <= threshold_)
            return position;
        axis_ = dx >= dy ? Qt::Horizontal : Qt::Vertical;
    }
    return *axis_ == Qt::Horizontal ? QPoint(position.x(), origin_.y())
                                    : QPoint(origin_.x(), position.y());
}

void ZelAxisSnapping::resetOrigin(const QPoint &origin)
{
    origin_ = origin;
}
