#include "ZelDockPlaces.h"

#include <QDockWidget>
#include <QMainWindow>

ZelDockPlaces::ZelDockPlaces(const QMainWindow *window)
    : window_(window)
{}

QRect ZelDockPlaces::of(QDockWidget *dock)
{
    const QRect place = dock->geometry();
    if (dock->isFloating() || window_->rect().intersects(place))
        return place;
    const auto known = behind_.constFind(dock);
    if (known != behind_.constEnd())
        return *known;
    const QList<QDockWidget *> group = window_->tabifiedDockWidgets(dock);
    for (const QDockWidget *front : group) {
        // One that floats keeps its place in the group.
        const bool stands = front->isVisible() && !front->isFloating();
        if (!stands || !window_->rect().intersects(front->geometry()))
            continue;
        for (const QDockWidget *other : group)
            behind_.insert(other, front->geometry());
        return front->geometry();
    }
    return place;
}
