#pragma once

#include <QMainWindow>
#include <QPointer>

/// Lets a main window paint nothing while it lives, so that steps in between aren't seen.
class WorkSpaceUpdateBlock
{
public:
    explicit WorkSpaceUpdateBlock(QMainWindow *window);
    ~WorkSpaceUpdateBlock();
    WorkSpaceUpdateBlock(const WorkSpaceUpdateBlock &) = delete;
    WorkSpaceUpdateBlock &operator=(const WorkSpaceUpdateBlock &) = delete;

private:
    /// Null if the window was blocked by somebody else.
    QPointer<QMainWindow> window_;
};
