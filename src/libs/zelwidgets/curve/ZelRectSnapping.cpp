#include "ZelRectSnapping.h"

#include <QtGlobal>

#include <cmath>

namespace ZelRectSnapping {
namespace {

/// The positions along one edge of the scene.
struct Row
{
    int center;
    int left;
    int right;
};

int snapAlong(const Row &row, const QRectF &rect, QPointF pos, double sceneWidth, int distance,
              int allowed)
{
    const double center = std::trunc(pos.x() + rect.right() * 0.5);
    const double middle = std::trunc(sceneWidth * 0.5);
    if ((allowed & row.center) && std::abs(middle - center) < distance)
        return row.center;
    if ((allowed & row.left) && pos.x() < distance)
        return row.left;
    if ((allowed & row.right) && sceneWidth - (rect.right() + pos.x()) < distance)
        return row.right;
    return 0;
}

/// One axis of a free item: from its position, the end and size of its bounds and the scene's size.
double clamped(double position, double end, double size, double scene, double border)
{
    if (position < border)
        position = border;
    if (end + position + border > scene)
        position = scene - size - border;
    return position;
}

} // namespace

int snapToBottom(const QRectF &rect, QPointF pos, QSizeF scene, int distance, int allowed)
{
    if (!(rect.bottom() + pos.y() > scene.height() - distance))
        return 0;
    return snapAlong({BottomCenter, BottomLeft, BottomRight}, rect, pos, scene.width(), distance,
                     allowed);
}

int snapToTop(const QRectF &rect, QPointF pos, QSizeF scene, int distance, int allowed)
{
    if (!(pos.y() < distance))
        return 0;
    return snapAlong({TopCenter, TopLeft, TopRight}, rect, pos, scene.width(), distance, allowed);
}

QPointF confined(int snap, const QRectF &bounds, QPointF pos, QSizeF scene, int border)
{
    const double right = scene.width() - bounds.width() - border;
    const double bottom = scene.height() - bounds.height() - border;
    const double center = std::round((scene.width() - bounds.width()) * 0.5);
    switch (snap) {
    case TopLeft:
        return QPointF(border, border);
    case TopCenter:
        return QPointF(center, border);
    case TopRight:
        return QPointF(right, border);
    case BottomLeft:
        return QPointF(border, bottom);
    case BottomCenter:
        return QPointF(center, bottom);
    case BottomRight:
        return QPointF(right, bottom);
    default:
        return QPointF(clamped(pos.x(), bounds.right(), bounds.width(), scene.width(), border),
                       clamped(pos.y(), bounds.bottom(), bounds.height(), scene.height(), border));
    }
}

int nextTowards(QPoint direction, const QRectF &bounds, QPointF pos, QSizeF scene, int border,
                int allowed)
{
    int nearest = 0;
    double least = 0;
    for (int snap = TopLeft; snap <= BottomRight; snap *= 2) {
        const QPointF way = confined(snap, bounds, pos, scene, border) - pos;
        const double along = way.x() * direction.x() + way.y() * direction.y();
        // Straight ahead goes before aside.
        const double detour = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
        const double distance = along + 4 * detour;
        if (!(allowed & snap) || !(along >= 1.0) || (nearest != 0 && distance >= least))
            continue;
        nearest = snap;
        least = distance;
    }
    return nearest;
}

} // namespace ZelRectSnapping
