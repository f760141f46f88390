#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>
#include <QList>
#include <QString>

class QListView;

/// Asks before items are deleted, and lists them. Cancel is the default, so Enter deletes nothing.
///
///     ZelDeleteItemsDialog dialog(this, names, tr("Delete Materials"),
///                                 tr("These materials will be deleted:"));
///     if (dialog.exec() == QDialog::Accepted)
///         ...
class ZELWIDGETS_EXPORT ZelDeleteItemsDialog : public QDialog
{
    Q_OBJECT

public:
    ZelDeleteItemsDialog(QWidget *parent, const QList<QString> &items, const QString &title,
                         const QString &text);

private:
    void addItems(const QList<QString> &items);

    QListView *items_;
};
