#include "DeskStart.h"

#include "DeskArrangement.h"
#include "DeskWindow.h"

#include <ZelCore/ZelSettings>
#include <ZelCore/ZelSettingsIO>
#include <ZelWidgets/WorkSpaceDefaults>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QDebug>

namespace {

/// Empty for a new user.
QByteArray lastUsedWorkSpace()
{
    const ZelSettings stored(QStringLiteral("WorkSpaces"));
    const QString id = stored.value(QStringLiteral("LastUsedWorkspace")).toString();
    return id.isEmpty() ? QByteArray() : stored.value(id).toByteArray();
}

} // namespace

void DeskStart::restore(DeskWindow *window)
{
    ZelStoreSettingsIO settings;
    WorkSpaceDefaults().updateSettingsIfNotAlreadyDone(&settings);
    QByteArray data;
    if (WorkSpaceHandler::mayHaveStartupRestoreIssue()) {
        qWarning() << "The last start ended while it restored its workspace, which is left out now";
        WorkSpaceHandler::clearStartupIssueFlag();
    } else {
        data = lastUsedWorkSpace();
    }
    const bool isRestored =
        !data.isEmpty() &&
        WorkSpaceHandler::restoreWorkSpace(data, window->library(), window->project(), true);
    if (!isRestored)
        DeskArrangement::apply(window, DeskArrangement::standardId(),
                               DeskArrangement::latestMinorVersion);
    window->followStoredSwitches();
}
