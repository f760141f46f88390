#include "WorkSpaceUpdateBlock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

/// Qt waits for ever for an update that was requested before and came while updates were off: no
/// later one is requested. Doing it by hand ends that.
void paintNow(QWidget *window)
{
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window, &request);
}

} // namespace

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
    // What became a window of its own in the meantime took the block along.
    QList<QPointer<QWidget>> blocked;
    for (QObject *child : window_->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget && widget->isWindow() && !widget->updatesEnabled() &&
            !widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
            blocked.append(widget);
    }
    window_->setUpdatesEnabled(true);
    paintNow(window_);
    for (const QPointer<QWidget> &widget : std::as_const(blocked)) {
        if (widget)
            widget->setUpdatesEnabled(true);
        if (widget)
            paintNow(widget);
    }
}
