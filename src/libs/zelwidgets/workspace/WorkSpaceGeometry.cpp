#include "workspace/WorkSpaceGeometry.h"

#include "workspace/WorkSpaceRecord.h"

#include <algorithm>

namespace {

/// What has to be in sight of the top of a window, so that a mouse can take it.
constexpr QSize grip(40, 10);

bool canBeGrabbed(const QRect &window, const QRect &available)
{
    const QRect top(window.topLeft(), QSize(window.width(), grip.height()));
    const QRect seen = top & available;
    return seen.height() == grip.height() && seen.width() >= qMin(grip.width(), window.width());
}

QRect movedInside(QRect rect, const QRect &area)
{
    rect.setSize(rect.size().boundedTo(area.size()));
    rect.moveLeft(std::clamp(rect.left(), area.left(), area.right() - rect.width() + 1));
    rect.moveTop(std::clamp(rect.top(), area.top(), area.bottom() - rect.height() + 1));
    return rect;
}

WorkSpaceGeometry::Target targetOf(const WorkSpaceRecord &record, const QString &dock,
                                   const QRect &rect, int oldIndex, int screenCount)
{
    WorkSpaceGeometry::Target target{dock, rect, QRect(), 0, false};
    if (oldIndex < 0 || oldIndex >= record.screens.size())
        return target;
    target.oldScreen = record.screens[oldIndex];
    if (oldIndex < screenCount)
        target.screen = oldIndex;
    return target;
}

} // namespace

QList<WorkSpaceGeometry::Target> WorkSpaceGeometry::targetsOf(const WorkSpaceRecord &record,
                                                              int screenCount)
{
    QList<Target> targets;
    const auto add = [&](const QStringList &names, const QList<QRect> &rects,
                         const QList<qint16> &screens, bool areTornOut) {
        for (qsizetype i = 0; i < names.size(); ++i) {
            targets.append(targetOf(record, names[i], rects[i], screens[i], screenCount));
            targets.last().isTornOut = areTornOut;
        }
    };
    if (record.hasMatchingTabScreens())
        add(record.tornOutNames, record.tornOutRects, record.tornOutScreens, true);
    if (record.hasMatchingDocks())
        add(record.dockNames, record.dockRects, record.dockScreens, false);
    return targets;
}

QRect WorkSpaceGeometry::placed(const QRect &rect, const QRect &oldScreen, const Screen &newScreen)
{
    const QRect &available = newScreen.available;
    if (rect.isEmpty() || available.isEmpty())
        return rect;
    const bool isSameScreen = oldScreen.isEmpty() || oldScreen == newScreen.geometry;
    if (isSameScreen && canBeGrabbed(rect, available))
        return rect;
    const QPoint shift =
        isSameScreen ? QPoint() : newScreen.geometry.topLeft() - oldScreen.topLeft();
    return movedInside(rect.translated(shift), available);
}

QRect WorkSpaceGeometry::placed(const Target &target, const QList<Screen> &screens)
{
    if (target.screen < 0 || target.screen >= screens.size())
        return {};
    return placed(target.oldRect, target.oldScreen, screens[target.screen]);
}
