#include "ZelIconListItemDelegate.h"

#include "theme/ZelFontMetrics.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

namespace {

constexpr int leastForOneLine = 48;
constexpr int mostForOneLine = 96;
constexpr int margin = 4;
constexpr int gap = 2;

} // namespace

ZelIconListItemDelegate::ZelIconListItemDelegate(QListView *view)
    : IconModeSizeDelegate(view)
    , view_(view)
{}

void ZelIconListItemDelegate::setTextCompress(bool compress)
{
    textCompress_ = compress;
}

bool ZelIconListItemDelegate::isIconMode() const
{
    return view_ && view_->viewMode() == QListView::IconMode;
}

int ZelIconListItemDelegate::textLines(int iconWidth)
{
    if (iconWidth < leastForOneLine)
        return 0;
    return iconWidth <= mostForOneLine ? 1 : 2;
}

QSize ZelIconListItemDelegate::actualSizeHint(QStyleOptionViewItem const &option,
                                              QModelIndex const &index) const
{
    if (!textCompress_ || !isIconMode()) {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return isIconMode() ? size.expandedTo(option.decorationSize) : size;
    }
    const ZelFontMetrics metrics(view_);
    QSize size = option.decorationSize + QSize(margin, 0);
    // A caption of three letters and an ellipsis has to fit.
    const bool fits = metrics.horizontalAdvance(QStringLiteral("Mw...")) <= size.width();
    const int lines = fits ? textLines(option.decorationSize.width()) : 0;
    size.rheight() += gap + (metrics.height() + gap) * lines;
    return size;
}

void ZelIconListItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    if (!option.widget) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const int leastHeight =
        item.decorationSize.height() + gap + ZelFontMetrics(option.widget).height();
    if (textCompress_ && isIconMode() && item.rect.height() < leastHeight)
        item.text.clear();
    item.state &= ~QStyle::State_HasFocus;
    const QStyle *style = option.widget->style();
    if (item.state.testFlag(QStyle::State_Selected)) {
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, option.widget);
        item.state &= ~QStyle::State_Selected;
    }
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, option.widget);
}
