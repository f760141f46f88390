#pragma once

#include <QDockWidget>
#include <QList>
#include <QPointer>
#include <QStyle>

class QMainWindow;

/// Takes the animations away from the docks of a window while it lives, if the user wants that (key
/// "BlockWorkspaceAnimations" of the group "ui").
class WorkSpaceAnimationBlock
{
public:
    explicit WorkSpaceAnimationBlock(QMainWindow *window);
    ~WorkSpaceAnimationBlock();
    WorkSpaceAnimationBlock(const WorkSpaceAnimationBlock &) = delete;
    WorkSpaceAnimationBlock &operator=(const WorkSpaceAnimationBlock &) = delete;

private:
    struct Entry
    {
        QPointer<QDockWidget> dock;
        QPointer<QStyle> styler;
        /// Null if the dock had the style of the application.
        QPointer<QStyle> own;
    };
    QList<Entry> entries_;
};
