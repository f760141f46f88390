#pragma once

#include "workspace/WorkSpaceList.h"

#include <QAction>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QWidget>

/// What the workspace button and the dialog that manages the workspaces share.
struct WorkSpaceRibbonData
{
    /// The workspace in force; empty if there is none.
    QString currentId;
    /// Shows the name of the current workspace.
    QPointer<QPushButton> button;
    QList<QPointer<QAction>> themeActions;
    WorkSpaceList list;
    QList<DefaultWorkSpaceInfo> factory;
    QPointer<QWidget> libraryWindow;
    QPointer<QWidget> projectWindow;
    /// Calls of the menu that run events and aren't over.
    int runningCalls = 0;
};
