#pragma once

#include <ZelWidgets/DefaultWorkSpaceInfo>
#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QList>
#include <QString>

class QMainWindow;
class QToolBar;
class QWidget;

/// Captures the interface of the application as bytes, and puts it back.
///
/// The two tab widgets, both ZelTextIconTabWidget, are those of the library window and of the
/// project window; all else is found from them: the main window is the nearest QMainWindow above
/// the first.
///
///     const QByteArray before = WorkSpaceHandler::getWorkSpaceData(library, project);
///     ...
///     WorkSpaceHandler::restoreWorkSpace(before, library, project, false);
class ZELWIDGETS_EXPORT WorkSpaceHandler
{
public:
    WorkSpaceHandler() = delete;

    /// The present interface. Gives each window of a torn-out page its stable object name. Without
    /// one of the tab widgets there is nothing in it.
    static QByteArray getWorkSpaceData(QWidget *libraryWindow, QWidget *projectWindow);
    /// True if the main window took its layout. Processes events, but no input of the user. Bytes
    /// in which nothing can be found and a missing tab widget are told in a message box and leave
    /// the interface as it is; a restore within a restore does nothing.
    ///
    /// On the restore of the start-up, "DoingStartupRestore" in the settings group "ui" is true
    /// until it is over.
    static bool restoreWorkSpace(const QByteArray &data, QWidget *libraryWindow,
                                 QWidget *projectWindow, bool startup);
    static bool isInWorkspaceRestore();

    /// True if the last start ended in its restore: better start without one then.
    static bool mayHaveStartupRestoreIssue();
    /// Does not save the settings.
    static void clearStartupIssueFlag();

    /// The factory workspaces of the newest bundle, sorted by their ids. Read once.
    static QList<DefaultWorkSpaceInfo> getDefaultWorkSpaces();

    /// Makes all docks of the window float, with no area to dock at, for a user who turned docking
    /// off.
    static void disableDockWidgets(QMainWindow *window);
    /// Gives the docks the areas back that disableDockWidgets() took.
    static void enableDockWidgets(QMainWindow *window);
    /// Of separators that have nothing visible between them, shows the first one only.
    static void fixSeparators(QToolBar *bar);

    static void setDevWorkSpaceMode(bool on);
    static bool workSpaceDevMode();
    /// A hook for tools that write workspaces; nothing happens here.
    static void writeWorkSpaceData(const QByteArray &data, const QString &fileName);
};
