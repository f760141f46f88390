#include "ZelRemoveIconProxyModel.h"

ZelRemoveIconProxyModel::ZelRemoveIconProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

QVariant ZelRemoveIconProxyModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::DecorationRole ? QVariant() : QSortFilterProxyModel::data(index, role);
}
