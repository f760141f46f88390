#pragma once

#include <QObject>
#include <QString>

class QDialog;

/// Copies the whole text of a message dialog on the platform's key for copying: title, texts and
/// buttons. It belongs to the dialog. Fields and labels with a selection are asked first, as they
/// get the key before the dialog does; so is a selection in the details of a message box.
class ZelDialogTextCopier : public QObject
{
    Q_OBJECT

public:
    explicit ZelDialogTextCopier(QDialog *dialog);

    static QString textOf(const QDialog *dialog);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void copy() const;

    QDialog *dialog_;
};
