#include "workspace/MaxLengthItemDelete.h"

#include "workspace/WorkSpaceNames.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

MaxLengthItemDelete::MaxLengthItemDelete(QObject *parent)
    : QStyledItemDelegate(parent)
{}

QWidget *MaxLengthItemDelete::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    auto *edit = new QLineEdit(parent);
    edit->setMaxLength(WorkSpaceNames::maximumLength);
    const QRegularExpression notBlank(QStringLiteral(".*[^ ].*"));
    edit->setValidator(new QRegularExpressionValidator(notBlank, edit));
    edit->setFrame(false);
    edit->setAccessibleName(tr("Workspace Name"));
    return edit;
}

void MaxLengthItemDelete::setModelData(QWidget *editor, QAbstractItemModel *model,
                                       const QModelIndex &index) const
{
    const auto *edit = qobject_cast<QLineEdit *>(editor);
    if (edit && edit->hasAcceptableInput())
        QStyledItemDelegate::setModelData(editor, model, index);
}
