#include "ZelAuthenticationDialog.h"

#include "ZelCapsLockHint.h"
#include "ZelSecretField.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShowEvent>

class ZelAuthenticationDialogPrivate
{
public:
    ZelSecretField user;
    ZelSecretField password;
};

ZelAuthenticationDialog::ZelAuthenticationDialog(QWidget *parent)
    : QDialog(parent)
    , user_(new QLineEdit(this))
    , password_(new QLineEdit(this))
    , d_(new ZelAuthenticationDialogPrivate{ZelSecretField(user_), ZelSecretField(password_)})
{
    setWindowTitle(tr("Authentication"));
    password_->setEchoMode(QLineEdit::Password);
    new ZelCapsLockHint(password_);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto *layout = new QFormLayout(this);
    layout->addRow(new QLabel(tr("Please enter credentials for the network:"), this));
    layout->addRow(tr("User"), user_);
    layout->addRow(tr("Password"), password_);
    layout->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ZelAuthenticationDialog::~ZelAuthenticationDialog() = default;

QString ZelAuthenticationDialog::getUser() const
{
    return d_->user.text();
}

QString ZelAuthenticationDialog::getPassword() const
{
    return d_->password.text();
}

void ZelAuthenticationDialog::done(int result)
{
    d_->user.close(result == Accepted);
    d_->password.close(result == Accepted);
    QDialog::done(result);
}

void ZelAuthenticationDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        d_->user.reopen();
        d_->password.reopen();
        user_->setFocus();
    }
    QDialog::showEvent(event);
}
