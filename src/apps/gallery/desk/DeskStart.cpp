#include "DeskStart.h"

#include "DeskArrangement.h"
#include "DeskRibbon.h"
#include "DeskWindow.h"

#include <ZelCore/ZelSettings>
#include <ZelCore/ZelSettingsIO>
#include <ZelWidgets/WorkSpaceAutosave>
#include <ZelWidgets/WorkSpaceDefaults>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QDebug>

namespace {

bool restoreCurrentWorkSpace(const DeskWindow *window)
{
    const QString id = window->ribbon()->workSpaces()->currentWorkSpace();
    const QByteArray data = id.isEmpty()
                                ? QByteArray()
                                : ZelSettings(QStringLiteral("WorkSpaces")).value(id).toByteArray();
    return !data.isEmpty() &&
           WorkSpaceHandler::restoreWorkSpace(data, window->library(), window->project(), true);
}

bool restoreLast(DeskWindow *window)
{
    const bool mayFail = WorkSpaceHandler::mayHaveStartupRestoreIssue();
    if (mayFail)
        qWarning() << "The last start ended while it restored its workspace, which is left out now";
    const auto result = window->autosave()->restore();
    WorkSpaceHandler::clearStartupIssueFlag();
    if (mayFail || result != WorkSpaceAutosave::NothingStored)
        return result == WorkSpaceAutosave::Restored;
    return restoreCurrentWorkSpace(window);
}

} // namespace

void DeskStart::restore(DeskWindow *window)
{
    ZelStoreSettingsIO settings;
    WorkSpaceDefaults().updateSettingsIfNotAlreadyDone(&settings);
    if (!restoreLast(window))
        DeskArrangement::apply(window, DeskArrangement::standardId(),
                               DeskArrangement::latestMinorVersion);
    window->followStoredSwitches();
    window->ribbon()->workSpaces()->updateChangeMark();
    window->autosave()->setEnabled(true);
}
