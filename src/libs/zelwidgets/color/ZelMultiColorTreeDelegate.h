#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QStyledItemDelegate>

/// Paints and edits the rows of ZelMultiColorTreeView: the icon scaled to the row, a word where
/// there is no name, and the editor over the whole name.
class ZELWIDGETS_EXPORT ZelMultiColorTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ZelMultiColorTreeDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
