#include "WorkSpaceDockPlacer.h"

#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>

#include <algorithm>
#include <optional>

namespace {

/// The side of a docked dock that the target decides; none for a dock outside the layout.
std::optional<Qt::Orientation> heldSide(const QMainWindow *window, QDockWidget *dock)
{
    switch (window->dockWidgetArea(dock)) {
    case Qt::LeftDockWidgetArea:
    case Qt::RightDockWidgetArea:
        return Qt::Horizontal;
    case Qt::TopDockWidgetArea:
    case Qt::BottomDockWidgetArea:
        return Qt::Vertical;
    default:
        return std::nullopt;
    }
}

/// The minimum that was given to the dock itself, 0 if it is that of what is in the dock, or if the
/// size was fixed.
QSize ownMinimum(QDockWidget *dock)
{
    dock->layout()->activate();
    const QSize contents = dock->layout()->totalMinimumSize();
    const QSize least = dock->minimumSize();
    const QSize most = dock->maximumSize();
    const auto own = [](int least, int most, int contents) {
        return least == most || least <= contents ? 0 : least;
    };
    return {own(least.width(), most.width(), contents.width()),
            own(least.height(), most.height(), contents.height())};
}

} // namespace

WorkSpaceDockPlacer::WorkSpaceDockPlacer(QMainWindow *window)
    : window_(window)
{}

WorkSpaceDockPlacer::~WorkSpaceDockPlacer()
{
    release();
}

void WorkSpaceDockPlacer::add(QDockWidget *dock, const QRect &rect)
{
    if (!rect.isEmpty())
        entries_.append({dock, rect, QSize()});
}

bool WorkSpaceDockPlacer::isInPlace(const Entry &entry) const
{
    if (entry.dock->isFloating())
        return entry.dock->geometry() == entry.rect;
    const auto side = heldSide(window_, entry.dock);
    if (!side)
        return true;
    return *side == Qt::Horizontal ? entry.dock->width() == entry.rect.width()
                                   : entry.dock->height() == entry.rect.height();
}

bool WorkSpaceDockPlacer::hold()
{
    const bool areInPlace =
        !window_ || std::all_of(entries_.cbegin(), entries_.cend(),
                                [this](const Entry &entry) { return isInPlace(entry); });
    if (areInPlace)
        return false;
    holds_ = true;
    for (Entry &entry : entries_)
        hold(entry);
    return true;
}

void WorkSpaceDockPlacer::hold(Entry &entry)
{
    QDockWidget *dock = entry.dock;
    if (!dock || !window_)
        return;
    entry.minimum = ownMinimum(dock);
    if (dock->isFloating()) {
        dock->setGeometry(entry.rect);
        dock->setFixedSize(entry.rect.size());
        return;
    }
    const auto side = heldSide(window_, dock);
    if (side == Qt::Horizontal)
        dock->setFixedWidth(entry.rect.width());
    else if (side == Qt::Vertical)
        dock->setFixedHeight(entry.rect.height());
}

void WorkSpaceDockPlacer::release()
{
    // The last one first: a dock that was placed twice gets back what it had at first.
    while (holds_ && !entries_.isEmpty()) {
        const Entry entry = entries_.takeLast();
        if (!entry.dock)
            continue;
        entry.dock->setMinimumSize(entry.minimum);
        entry.dock->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    // Docks of a fixed size stand without gaps.
    if (holds_ && window_ && window_->layout())
        window_->layout()->activate();
    entries_.clear();
    holds_ = false;
}
