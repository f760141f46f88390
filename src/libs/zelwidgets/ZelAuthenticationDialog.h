#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>

#include <memory>

class QLineEdit;
class ZelAuthenticationDialogPrivate;

/// Asks for the user name and the password of a network.
///
///     ZelAuthenticationDialog dialog(this);
///     if (dialog.exec() == QDialog::Accepted)
///         authenticator->setPassword(dialog.getPassword());
///
/// When the dialog closes, the fields are emptied, so that neither they nor their undo history hold
/// the texts any longer. After OK the answers stay readable until the dialog is shown again,
/// rejected or destroyed, and are then overwritten; after Cancel they are empty.
class ZELWIDGETS_EXPORT ZelAuthenticationDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ZelAuthenticationDialog(QWidget *parent = nullptr);
    ~ZelAuthenticationDialog() override;

    /// What is entered now, or was when the dialog was accepted.
    QString getUser() const;
    QString getPassword() const;

    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLineEdit *user_;
    QLineEdit *password_;
    std::unique_ptr<ZelAuthenticationDialogPrivate> d_;
};
