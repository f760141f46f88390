#include "DeskStart.h"

#include "DeskArrangement.h"
#include "DeskRibbon.h"
#include "DeskWindow.h"

#include <ZelCore/ZelSettings>
#include <ZelCore/ZelSettingsIO>
#include <ZelWidgets/WorkSpaceDefaults>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QDebug>

namespace {

QByteArray currentWorkSpace(const DeskWindow *window)
{
    const QString id = window->ribbon()->workSpaces()->currentWorkSpace();
    if (id.isEmpty())
        return {};
    return ZelSettings(QStringLiteral("WorkSpaces")).value(id).toByteArray();
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
        data = currentWorkSpace(window);
    }
    const bool isRestored =
        !data.isEmpty() &&
        WorkSpaceHandler::restoreWorkSpace(data, window->library(), window->project(), true);
    if (!isRestored)
        DeskArrangement::apply(window, DeskArrangement::standardId(),
                               DeskArrangement::latestMinorVersion);
    window->followStoredSwitches();
}
