#include "ZelZoomAnchor.h"

#include <QScrollBar>

namespace {

/// The item at the position or, in the gap between two, the next one above or before it.
QModelIndex itemNear(const QListView *view, const QPoint &position)
{
    constexpr int step = 8;
    const QPoint back(view->isRightToLeft() ? step : -step, 0);
    const QRect area = view->viewport()->rect();
    for (int y = position.y(); y >= area.top(); y -= step) {
        for (QPoint at(position.x(), y); area.contains(at); at += back) {
            const QModelIndex index = view->indexAt(at);
            if (index.isValid())
                return index;
        }
    }
    return {};
}

QModelIndex anchorOf(const QListView *view, std::optional<QPoint> position)
{
    const QRect area = view->viewport()->rect();
    if (position)
        return itemNear(view, *position);
    const QModelIndex current = view->currentIndex();
    const bool isInSight = area.intersects(view->visualRect(current));
    return isInSight ? current : itemNear(view, area.center());
}

void scrollBy(QScrollBar *bar, int pixels)
{
    bar->setValue(bar->value() + pixels);
}

} // namespace

ZelZoomAnchor::ZelZoomAnchor(QListView *view, std::optional<QPoint> position)
    : view_(view)
{
    if (!view || !view->model())
        return;
    index_ = anchorOf(view, position);
    center_ = view->visualRect(index_).center();
}

ZelZoomAnchor::~ZelZoomAnchor()
{
    if (!view_ || !index_.isValid() || index_.model() != view_->model())
        return;
    const QPoint moved = view_->visualRect(index_).center() - center_;
    const bool isByPixel = view_->viewMode() == QListView::IconMode ||
                           view_->verticalScrollMode() == QListView::ScrollPerPixel;
    if (isByPixel) {
        scrollBy(view_->verticalScrollBar(), moved.y());
        scrollBy(view_->horizontalScrollBar(), view_->isRightToLeft() ? -moved.x() : moved.x());
    }
    view_->scrollTo(index_);
}
