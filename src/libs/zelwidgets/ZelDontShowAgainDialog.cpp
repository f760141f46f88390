#include "ZelDontShowAgainDialog.h"

#include "ZelDialogTextCopier.h"
#include "ZelStoredValue.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QPushButton>

namespace {

constexpr int noChoice = -1;

ZelSettings store()
{
    return ZelSettings(QString());
}

QMessageBox::StandardButton asMessageButton(QDialogButtonBox::StandardButton button)
{
    return QMessageBox::StandardButton(int(button));
}

QMessageBox::StandardButtons asMessageButtons(QDialogButtonBox::StandardButtons buttons)
{
    return QMessageBox::StandardButtons(QFlag(int(buttons)));
}

} // namespace

ZelDontShowAgainDialog::ZelDontShowAgainDialog(const QString &name, QWidget *parent)
    : QMessageBox(parent)
    , key_(QStringLiteral("ZelDontShowAgainDialog.") + name)
    , choiceKey_(QStringLiteral("ZelDontShowAgainDialog.UserChoices.") + name)
    , dontShowAgain_(new QCheckBox(tr("Don't Show Again"), this))
{
    setWindowFlags(windowFlags() & ~Qt::MSWindowsFixedSizeDialogHint);
    dontShowAgain_->setChecked(!storedShow());
    setCheckBox(dontShowAgain_);
    setWindowTitle(QCoreApplication::applicationName());
    new ZelDialogTextCopier(this);
}

ZelDontShowAgainDialog::ZelDontShowAgainDialog(const QString &name, QMessageBox::Icon icon,
                                               const QString &title, const QString &text,
                                               QMessageBox::StandardButtons buttons,
                                               QWidget *parent)
    : ZelDontShowAgainDialog(name, parent)
{
    setButtons(buttons);
    setIcon(icon);
    setWindowTitle(title);
    setText(text);
}

ZelDontShowAgainDialog::ZelDontShowAgainDialog(const QString &name, QMessageBox::Icon icon,
                                               const QString &title, const QString &text,
                                               QDialogButtonBox::StandardButtons buttons,
                                               QWidget *parent)
    : ZelDontShowAgainDialog(name, icon, title, text, asMessageButtons(buttons), parent)
{}

int ZelDontShowAgainDialog::exec()
{
    const bool show = storedShow();
    const int choice = storedChoice();
    const bool isWanted = show || (rememberUserChoice_ && choice == noChoice);
    wasShown_ = forceShow_ || isWanted;
    if (!wasShown_)
        return choice;
    if (escapeKey_ == 0)
        chooseEscapeKey();
    const int result = QDialog::exec();
    if (result == 0 || result == QDialogButtonBox::Cancel)
        return result;
    ZelSettings settings = store();
    settings.setValue(key_, !dontShowAgain_->isChecked());
    settings.setValue(choiceKey_, result);
    return result;
}

bool ZelDontShowAgainDialog::storedShow() const
{
    return storedValue(store(), key_, true);
}

int ZelDontShowAgainDialog::storedChoice() const
{
    return storedValue(store(), choiceKey_, noChoice);
}

void ZelDontShowAgainDialog::chooseEscapeKey()
{
    for (const auto which : {QMessageBox::Cancel, QMessageBox::No}) {
        if (button(which)) {
            setEscapeKey(which);
            return;
        }
    }
}

void ZelDontShowAgainDialog::reject()
{
    if (escapeKey_ != 0)
        done(escapeKey_);
    else
        QMessageBox::reject();
}

QAbstractButton *ZelDontShowAgainDialog::button(QDialogButtonBox::StandardButton which) const
{
    return button(asMessageButton(which));
}

void ZelDontShowAgainDialog::setButtons(QMessageBox::StandardButtons buttons)
{
    setStandardButtons(buttons);
}

void ZelDontShowAgainDialog::setButtons(QDialogButtonBox::StandardButtons buttons)
{
    setButtons(asMessageButtons(buttons));
}

void ZelDontShowAgainDialog::setDefaultButton(QMessageBox::StandardButton which)
{
    if (which != NoButton && !button(which))
        addButton(which);
    QMessageBox::setDefaultButton(which);
}

void ZelDontShowAgainDialog::setDefaultButton(QDialogButtonBox::StandardButton which)
{
    setDefaultButton(asMessageButton(which));
}

void ZelDontShowAgainDialog::setDontShowButton(QMessageBox::StandardButton which)
{
    dontShowButton_ = which;
}

void ZelDontShowAgainDialog::setDontShowButton(QDialogButtonBox::StandardButton which)
{
    dontShowButton_ = which;
}

int ZelDontShowAgainDialog::dontShowButton() const
{
    return dontShowButton_;
}

void ZelDontShowAgainDialog::setEscapeKey(QMessageBox::StandardButton which)
{
    setEscapeButton(which);
    escapeKey_ = which;
}

void ZelDontShowAgainDialog::setEscapeKey(QDialogButtonBox::StandardButton which)
{
    setEscapeKey(asMessageButton(which));
}

void ZelDontShowAgainDialog::setForceShow(bool force)
{
    forceShow_ = force;
}

void ZelDontShowAgainDialog::setRememberUserChoice(bool remember)
{
    rememberUserChoice_ = remember;
}

QString ZelDontShowAgainDialog::settingsName() const
{
    return key_;
}

bool ZelDontShowAgainDialog::wasShown() const
{
    return wasShown_;
}
