#pragma once

#include <QList>
#include <QRect>
#include <QString>

struct WorkSpaceRecord;

/// Where windows of a workspace go on the screens that are there now.
namespace WorkSpaceGeometry {

struct Screen
{
    QRect geometry;
    QRect available;

    bool operator==(const Screen &) const = default;
};

/// A dock with the place that it had.
struct Target
{
    QString dock;
    QRect oldRect;
    QRect oldScreen;
    /// The index of the screen that it goes to; the first one if its own is gone.
    int screen = 0;
    /// True if dock is the name of a torn-out page.
    bool isTornOut = false;

    bool operator==(const Target &) const = default;
};

/// The places that a workspace has for torn-out tabs and for docks. A dock whose screen wasn't
/// recorded has an empty oldScreen; lists of unequal lengths give nothing.
QList<Target> targetsOf(const WorkSpaceRecord &record, int screenCount);

/// The rectangle on a screen of today. It keeps its distance from the top left corner of the
/// screen, then it is shrunk and moved into sight; on a screen that is as it was, a window that can
/// be grabbed at its top stays where it was. Empty rectangles stay empty.
QRect placed(const QRect &rect, const QRect &oldScreen, const Screen &newScreen);

/// placed() for a target; an empty rectangle if there are no screens.
QRect placed(const Target &target, const QList<Screen> &screens);

} // namespace WorkSpaceGeometry
