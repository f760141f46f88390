#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QStyledItemDelegate>

/// Edits the names of workspaces in a list: at most 20 characters, and not blanks alone. A name
/// that isn't allowed never reaches the model, however the editor is left.
class ZELWIDGETS_EXPORT MaxLengthItemDelete : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit MaxLengthItemDelete(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
};
