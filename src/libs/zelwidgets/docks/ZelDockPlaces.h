#pragma once

#include <QHash>
#include <QRect>

class QDockWidget;
class QMainWindow;

/// Where the docks of a window can be seen, as their geometry() tells it: a dock behind others in a
/// group of tabs lies out of sight, in a size that it had some time, so that its place is that of
/// the group.
class ZelDockPlaces
{
public:
    /// For as long as nothing is moved.
    explicit ZelDockPlaces(const QMainWindow *window);

    QRect of(QDockWidget *dock);

private:
    const QMainWindow *window_;
    QHash<const QDockWidget *, QRect> behind_;
};
