#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QListView>
#include <QPersistentModelIndex>
#include <QPointer>

#include <optional>

/// Keeps a place of a list of icons where it is while the icons change their size.
///
/// Lives around the change: its destructor lays the list out and scrolls it so that the item of the
/// place is where it was, and whole in sight. The lists that ask for a zoom hold one while they do;
/// an application that changes the size by itself, with a slider, holds its own.
class ZELWIDGETS_EXPORT ZelZoomAnchor
{
public:
    /// The place is the item at the position in the viewport; without one, the current item if it
    /// is in sight, else an item at the middle of what is.
    explicit ZelZoomAnchor(QListView *view, std::optional<QPoint> position = {});
    ~ZelZoomAnchor();
    ZelZoomAnchor(const ZelZoomAnchor &) = delete;
    ZelZoomAnchor &operator=(const ZelZoomAnchor &) = delete;

private:
    QPointer<QListView> view_;
    QPersistentModelIndex index_;
    QPoint center_;
};
