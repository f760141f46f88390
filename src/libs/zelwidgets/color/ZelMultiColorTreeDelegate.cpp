#include "color/ZelMultiColorTreeDelegate.h"

#include "color/ZelMultiColorListModel.h"

#include <QLineEdit>

ZelMultiColorTreeDelegate::ZelMultiColorTreeDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

QWidget *ZelMultiColorTreeDelegate::createEditor(QWidget *parent,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (editor)
        editor->setAccessibleName(tr("Name"));
    return editor;
}

QSize ZelMultiColorTreeDelegate::sizeHint(const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    constexpr int gap = 4;
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), qMax(hint.height(), option.decorationSize.height() + gap)};
}

void ZelMultiColorTreeDelegate::updateEditorGeometry(QWidget *editor,
                                                     const QStyleOptionViewItem &option,
                                                     const QModelIndex &) const
{
    // The whole field of the name; an editor that is higher than the row sits over its middle.
    QRect place = option.rect;
    const int height = qMax(place.height(), editor->minimumSizeHint().height());
    place.moveTop(place.top() - (height - place.height()) / 2);
    place.setHeight(height);
    if (const QWidget *viewport = editor->parentWidget())
        place.moveTop(qBound(0, place.top(), qMax(0, viewport->height() - height)));
    editor->setGeometry(place);
}

void ZelMultiColorTreeDelegate::initStyleOption(QStyleOptionViewItem *option,
                                                const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() != ZelMultiColorListModel::NameColumn || !option->text.isEmpty())
        return;
    option->features |= QStyleOptionViewItem::HasDisplay;
    option->text = tr("Unnamed");
    option->font.setItalic(true);
}
