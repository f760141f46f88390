#include "WorkSpaceUpdateBlock.h"

#include <QWidget>
#include <QWindow>

namespace {

/// What comes up for the first time while it is blocked would stay empty.
bool isSeen(const QMainWindow *window)
{
    return window->windowHandle() && window->windowHandle()->isExposed();
}

} // namespace

WorkSpaceUpdateBlock::WorkSpaceUpdateBlock(QMainWindow *window)
    : window_(window->updatesEnabled() && isSeen(window) ? window : nullptr)
{
    if (window_)
        window_->setUpdatesEnabled(false);
}

WorkSpaceUpdateBlock::~WorkSpaceUpdateBlock()
{
    if (!window_)
        return;
    window_->setUpdatesEnabled(true);
    // What became a window of its own in the meantime took the block along.
    for (QObject *child : window_->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget && widget->isWindow() && !widget->updatesEnabled() &&
            !widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
            widget->setUpdatesEnabled(true);
    }
}
