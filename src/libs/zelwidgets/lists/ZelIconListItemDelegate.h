#pragma once

#include <ZelWidgets/IconModeSizeDelegate>
#include <ZelWidgets/zelwidgets_export.h>

/// Cells with a large icon and, where it is wide enough, one or two lines of text below it.
class ZELWIDGETS_EXPORT ZelIconListItemDelegate : public IconModeSizeDelegate
{
    Q_OBJECT

public:
    /// The view owns the delegate.
    explicit ZelIconListItemDelegate(QListView *view);

    /// Whether small icons go without text, as they do at first.
    void setTextCompress(bool compress);

    QSize actualSizeHint(QStyleOptionViewItem const &option,
                         QModelIndex const &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The lines of text below an icon of this width.
    static int textLines(int iconWidth);

private:
    bool isIconMode() const;

    QListView *view_;
    bool textCompress_ = true;
};
