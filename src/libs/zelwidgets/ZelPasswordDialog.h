#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>

#include <memory>

class QPushButton;
class ZelLineEdit;
class ZelPasswordDialogPrivate;

/// Asks for a new password, twice. OK is enabled only while both entries are the same and not
/// empty.
///
/// When the dialog closes, the fields are emptied. After OK the password stays readable until the
/// dialog is shown again, rejected or destroyed, and is then overwritten; after Cancel it is empty.
class ZELWIDGETS_EXPORT ZelPasswordDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ZelPasswordDialog(QWidget *parent = nullptr);
    ~ZelPasswordDialog() override;

    /// The first entry as it is now, or was when the dialog was accepted.
    QString password() const;

    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    ZelLineEdit *addField(const QString &label, int row);
    void updateOk();

    ZelLineEdit *first_ = nullptr;
    ZelLineEdit *second_ = nullptr;
    QPushButton *ok_ = nullptr;
    std::unique_ptr<ZelPasswordDialogPrivate> d_;
};
