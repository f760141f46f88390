#include "IconModeSizeDelegate.h"

#include <QListView>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int reserve = 2;

} // namespace

IconModeSizeDelegate::IconModeSizeDelegate()
    : IconModeSizeDelegate(nullptr)
{}

IconModeSizeDelegate::IconModeSizeDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

int IconModeSizeDelegate::sizeWidthMinusIconWidth() const
{
    return sizeWidthMinusIconWidth_;
}

int IconModeSizeDelegate::availableWidth(const QListView *view)
{
    int width = view->viewport()->width();
    const QScrollBar *bar = view->verticalScrollBar();
    if (!bar->isVisible())
        width -= bar->sizeHint().width();
    const QStyle *style = view->style();
    if (style->styleHint(QStyle::SH_ScrollView_FrameOnlyAroundContents, nullptr, view))
        width -= 2 * style->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, view);
    return width - reserve;
}

int IconModeSizeDelegate::sharedWidth(int needed, int available)
{
    const int columns = needed > 0 ? available / needed : 0;
    return columns > 0 ? needed + (available - needed * columns) / columns : needed;
}

QSize IconModeSizeDelegate::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    QSize size = actualSizeHint(option, index);
    const auto *view = qobject_cast<QListView *>(parent());
    if (!view || view->viewMode() != QListView::IconMode || !size.isValid())
        return size;
    const bool wasUnset = sizeWidthMinusIconWidth_ < 0;
    sizeWidthMinusIconWidth_ = size.width() - option.decorationSize.width();
    if (wasUnset) {
        sizeWidthMinusIconWidth_ = std::max(sizeWidthMinusIconWidth_, 0);
        Q_EMIT iconDeltaChanged();
    }
    size.setWidth(sharedWidth(size.width(), availableWidth(view)));
    return size;
}

QSize IconModeSizeDelegate::actualSizeHint(QStyleOptionViewItem const &option,
                                           QModelIndex const &index) const
{
    return QStyledItemDelegate::sizeHint(option, index);
}
