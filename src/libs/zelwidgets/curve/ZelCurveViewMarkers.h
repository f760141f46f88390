#pragma once

#include <ZelCore/ZelCurvePointHandle>

#include <QList>
#include <QTimer>

class QGraphicsItem;
class QGraphicsScene;
class ZelCurveScene;

/// The markers that a scene shows, in the order in which the keyboard walks them: curve by curve,
/// in the order of the vertices, each vertex before the ends of its tangents.
class ZelCurveViewMarkers
{
public:
    ZelCurveViewMarkers();

    /// The scene's markers as they are in this turn of the event loop.
    const QList<ZelCurvePointHandle> &list(const QGraphicsScene *scene);

    /// The index of a marker in the list, or -1.
    int indexOf(const QGraphicsScene *scene, const ZelCurvePointHandle &point);
    /// The next vertex behind, or before, the one at the index; with -1 the first or the last one.
    /// The result is -1 behind the ends.
    int nextVertex(const QGraphicsScene *scene, int from, bool forward);

    /// The point of the scene's selected marker; one of an invalid vertex if none is selected.
    static ZelCurvePointHandle selected(const QGraphicsScene *scene);
    /// The point whose marker the item is; one of an invalid vertex if it is none.
    static ZelCurvePointHandle pointOf(QGraphicsItem *item);
    static void select(const ZelCurveScene *scene, const ZelCurvePointHandle &point);

private:
    QList<ZelCurvePointHandle> points_;
    qsizetype itemCount_ = -1;
    /// Runs while the list is good.
    QTimer turn_;
};
