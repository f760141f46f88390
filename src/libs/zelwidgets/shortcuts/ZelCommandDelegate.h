#pragma once

#include <QStyledItemDelegate>

/// Draws a row of ZelCommandModel: the text with the letters that fit in bold and underlined, the
/// category below, the key at the other end.
class ZelCommandDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
