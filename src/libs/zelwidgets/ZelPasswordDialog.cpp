#include "ZelPasswordDialog.h"

#include "ZelCapsLockHint.h"
#include "ZelLineEdit.h"
#include "ZelSecretField.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>

namespace {

constexpr int fieldCharacters = 12;

} // namespace

class ZelPasswordDialogPrivate
{
public:
    ZelSecretField first;
    ZelSecretField second;
};

ZelPasswordDialog::ZelPasswordDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Password"));
    auto *layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    first_ = addField(tr("Enter password:"), 0);
    second_ = addField(tr("Confirm password:"), 1);
    d_.reset(new ZelPasswordDialogPrivate{ZelSecretField(first_), ZelSecretField(second_)});
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    layout->addWidget(buttons, 2, 1, 1, 2);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    updateOk();
}

ZelPasswordDialog::~ZelPasswordDialog() = default;

ZelLineEdit *ZelPasswordDialog::addField(const QString &label, int row)
{
    auto *field = new ZelLineEdit(this);
    field->setMinimalTextWidth(fieldCharacters);
    field->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    new ZelCapsLockHint(field);
    auto *text = new QLabel(label, this);
    text->setBuddy(field);
    auto *grid = static_cast<QGridLayout *>(layout());
    grid->addWidget(text, row, 0);
    grid->addWidget(field, row, 1);
    connect(field, &QLineEdit::textEdited, this, &ZelPasswordDialog::updateOk);
    return field;
}

QString ZelPasswordDialog::password() const
{
    return d_->first.text();
}

void ZelPasswordDialog::updateOk()
{
    ok_->setEnabled(!first_->text().isEmpty() && first_->text() == second_->text());
}

void ZelPasswordDialog::done(int result)
{
    d_->first.close(result == Accepted);
    d_->second.close(false);
    updateOk();
    QDialog::done(result);
}

void ZelPasswordDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        d_->first.reopen();
        first_->setFocus();
    }
    QDialog::showEvent(event);
}
