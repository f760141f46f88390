#include "WorkSpaceDockPlacer.h"

#include <QDockWidget>
#include <QMainWindow>

WorkSpaceDockPlacer::WorkSpaceDockPlacer(QMainWindow *window)
    : window_(window)
{}

WorkSpaceDockPlacer::~WorkSpaceDockPlacer()
{
    release();
}

void WorkSpaceDockPlacer::place(QDockWidget *dock, const QRect &rect)
{
    if (!window_ || rect.isEmpty())
        return;
    // A size that was fixed already is no minimum of the dock's own.
    const QSize least = dock->minimumSize();
    const QSize most = dock->maximumSize();
    entries_.append({dock, QSize(least.width() == most.width() ? 0 : least.width(),
                                 least.height() == most.height() ? 0 : least.height())});
    if (dock->isFloating()) {
        dock->setGeometry(rect);
        dock->setFixedSize(rect.size());
        return;
    }
    const Qt::DockWidgetArea area = window_->dockWidgetArea(dock);
    if (area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea)
        dock->setFixedWidth(rect.width());
    else if (area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea)
        dock->setFixedHeight(rect.height());
}

void WorkSpaceDockPlacer::release()
{
    // The last one first: a dock that was placed twice gets back what it had at first.
    while (!entries_.isEmpty()) {
        const Entry entry = entries_.takeLast();
        if (!entry.dock)
            continue;
        entry.dock->setMinimumSize(entry.minimum);
        entry.dock->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
}
