#include "WorkSpaceUpdateBlock.h"

#include <QWidget>

WorkSpaceUpdateBlock::WorkSpaceUpdateBlock(QMainWindow *window)
    : window_(window->updatesEnabled() ? window : nullptr)
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
