#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QSortFilterProxyModel>

/// The source model without its decorations.
class ZELWIDGETS_EXPORT ZelRemoveIconProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ZelRemoveIconProxyModel(QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
};
