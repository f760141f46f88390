#include "workspace/WorkSpaceComparison.h"

#include "workspace/WorkSpaceLayoutState.h"
#include "workspace/WorkSpaceRecord.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

/// Sorts the names, and with them the lists that stand beside them.
void sortByName(QStringList &names, QList<QRect> &rects, QList<qint16> &screens)
{
    if (rects.size() != names.size() || screens.size() != names.size())
        return;
    std::vector<qsizetype> order(size_t(names.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&names](qsizetype a, qsizetype b) { return names[a] < names[b]; });
    const QStringList oldNames = names;
    const QList<QRect> oldRects = rects;
    const QList<qint16> oldScreens = screens;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const qsizetype from = order[size_t(i)];
        names[i] = oldNames[from];
        rects[i] = oldRects[from];
        screens[i] = oldScreens[from];
    }
}

/// Takes away what may differ without a change by the user.
void reduce(WorkSpaceRecord &record, bool hasSameScreens, bool hasSameSize)
{
    sortByName(record.tornOutNames, record.tornOutRects, record.tornOutScreens);
    sortByName(record.dockNames, record.dockRects, record.dockScreens);
    record.hiddenRibbonIds.sort();
    record.version = WorkSpaceRecord::currentVersion;
    record.screenGeometry = QRect();
    record.screenAvailable = QRect();
    record.devicePixelRatio = 1;
    record.screens.clear();
    record.visibleRibbonIds.clear();
    record.mainWindowGeometry = QRect();
    record.maximized = false;
    record.libraryTabIndex = 0;
    record.projectTabIndex = 0;
    record.tabWidgetNames.clear();
    record.tabWidgetIndices.clear();
    record.sceneSubTabText.clear();
    if (!hasSameScreens) {
        record.tornOutRects.clear();
        record.tornOutScreens.clear();
        record.dockScreens.clear();
    }
    if (!hasSameScreens || !hasSameSize) {
        record.dockRects.clear();
        record.mainWindowState = WorkSpaceLayoutState::structure(record.mainWindowState);
    }
}

} // namespace

bool WorkSpaceComparison::isSameArrangement(const QByteArray &first, const QByteArray &second)
{
    if (first == second)
        return true;
    WorkSpaceRecord a = WorkSpaceRecord::read(first);
    WorkSpaceRecord b = WorkSpaceRecord::read(second);
    if (!a.isValid || !b.isValid)
        return false;
    const bool hasSameScreens = a.screens == b.screens;
    const bool hasSameSize = a.mainWindowGeometry.size() == b.mainWindowGeometry.size();
    reduce(a, hasSameScreens, hasSameSize);
    reduce(b, hasSameScreens, hasSameSize);
    return a == b;
}
