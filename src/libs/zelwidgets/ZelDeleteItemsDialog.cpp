#include "ZelDeleteItemsDialog.h"

#include "theme/ZelPushButton.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

constexpr int listCharacters = 48;
constexpr int listRows = 8;

} // namespace

ZelDeleteItemsDialog::ZelDeleteItemsDialog(QWidget *parent, const QList<QString> &items,
                                           const QString &title, const QString &text)
    : QDialog(parent)
    , items_(new QListView(this))
{
    setWindowTitle(title);
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(text, this);
    label->setWordWrap(true);
    layout->addWidget(label);
    items_->setAccessibleName(text);
    addItems(items);
    layout->addWidget(items_, 1);

    auto *buttons = new QDialogButtonBox(this);
    auto *remove = new ZelPushButton(tr("Delete"), this);
    buttons->addButton(remove, QDialogButtonBox::AcceptRole);
    remove->setAutoDefault(false);
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setDefault(true);
    cancel->setFocus();
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ZelDeleteItemsDialog::addItems(const QList<QString> &items)
{
    auto *model = new QStandardItemModel(this);
    for (const QString &name : items) {
        auto *item = new QStandardItem(name);
        item->setEditable(false);
        item->setToolTip(name);
        model->appendRow(item);
    }
    items_->setModel(model);
    items_->setTabKeyNavigation(false);
    items_->setTextElideMode(Qt::ElideMiddle);
    items_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    items_->setMinimumSize(items_->fontMetrics().averageCharWidth() * listCharacters,
                           items_->fontMetrics().lineSpacing() * listRows);
}
