#pragma once

#include "workspace/WorkSpaceList.h"

#include <QAction>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QWidget>

#include <memory>

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

/// Counts a call of the menu in which the button may die.
class WorkSpaceRunningCall
{
public:
    explicit WorkSpaceRunningCall(std::shared_ptr<WorkSpaceRibbonData> data)
        : data_(std::move(data))
    {
        ++data_->runningCalls;
    }
    ~WorkSpaceRunningCall() { --data_->runningCalls; }
    WorkSpaceRunningCall(const WorkSpaceRunningCall &) = delete;
    WorkSpaceRunningCall &operator=(const WorkSpaceRunningCall &) = delete;

private:
    std::shared_ptr<WorkSpaceRibbonData> data_;
};
