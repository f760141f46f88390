#include "curve/ZelCurveViewMarkers.h"

#include "curve/ZelCurveSceneAccess.h"
#include "curve/ZelCurveVertexItem.h"

#include <ZelWidgets/ZelCurveScene>

#include <QGraphicsItem>
#include <QGraphicsScene>

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

using IMarker = ZelCurveVertexItem::IMarker;

struct Place
{
    qsizetype curve;
    int vertex;
    ZelCurvePointHandle point;

    bool operator<(const Place &other) const
    {
        return std::tuple(curve, vertex, point.key()) <
               std::tuple(other.curve, other.vertex, other.point.key());
    }
};

} // namespace

ZelCurveViewMarkers::ZelCurveViewMarkers()
{
    turn_.setSingleShot(true);
}

const QList<ZelCurvePointHandle> &ZelCurveViewMarkers::list(const QGraphicsScene *scene)
{
    const QList<QGraphicsItem *> items =
        scene ? scene->items(Qt::AscendingOrder) : QList<QGraphicsItem *>();
    if (turn_.isActive() && items.size() == itemCount_)
        return points_;
    std::vector<Place> places;
    QList<const ZelCurveModel *> curves;
    for (QGraphicsItem *item : items) {
        const ZelCurvePointHandle point = item->isVisible() ? pointOf(item) : ZelCurvePointHandle();
        if (!point.isValid())
            continue;
        const ZelCurveModel *curve = point.vertex().model();
        if (!curves.contains(curve))
            curves << curve;
        places.push_back({curves.indexOf(curve), point.vertex().index(), point});
    }
    std::sort(places.begin(), places.end());
    points_.clear();
    for (const Place &place : places)
        points_ << place.point;
    itemCount_ = items.size();
    turn_.start(0);
    return points_;
}

int ZelCurveViewMarkers::indexOf(const QGraphicsScene *scene, const ZelCurvePointHandle &point)
{
    return point.isValid() ? int(list(scene).indexOf(point)) : -1;
}

int ZelCurveViewMarkers::nextVertex(const QGraphicsScene *scene, int from, bool forward)
{
    const QList<ZelCurvePointHandle> &points = list(scene);
    const int count = int(points.size());
    const int step = forward ? 1 : -1;
    // From the end of a tangent backwards it is the tangent's own vertex that comes first.
    int index = from < 0 ? (forward ? 0 : count - 1) : from + step;
    while (index >= 0 && index < count && points[index].key() != ZelVertexData::Position)
        index += step;
    return index < count ? index : -1;
}

ZelCurvePointHandle ZelCurveViewMarkers::selected(const QGraphicsScene *scene)
{
    const QList<QGraphicsItem *> items = scene ? scene->selectedItems() : QList<QGraphicsItem *>();
    return items.size() == 1 ? pointOf(items.first()) : ZelCurvePointHandle();
}

ZelCurvePointHandle ZelCurveViewMarkers::pointOf(QGraphicsItem *item)
{
    const auto *marker = dynamic_cast<IMarker *>(item);
    return marker ? ZelCurvePointHandle(marker->vertexHandle(), marker->vertexData())
                  : ZelCurvePointHandle();
}

void ZelCurveViewMarkers::select(const ZelCurveScene *scene, const ZelCurvePointHandle &point)
{
    QGraphicsItem *marker = scene && point.isValid()
                                ? ZelCurveSceneAccess::marker(*scene, point.vertex(), point.key())
                                : nullptr;
    if (marker && marker->isVisible())
        marker->setSelected(true);
}
