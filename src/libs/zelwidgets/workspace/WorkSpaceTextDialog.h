#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>

class QLineEdit;

/// Asks for the name of a workspace in a small window without a frame, which opens at the lower
/// left corner of the widget that it belongs to, or at the mouse if it belongs to none. A name has
/// at most 20 characters and isn't blank.
class ZELWIDGETS_EXPORT WorkSpaceTextDialog : public QDialog
{
    Q_OBJECT

public:
    /// A proposal that is too long is cut.
    WorkSpaceTextDialog(const QString &title, const QString &label, const QString &proposal,
                        QWidget *parent = nullptr);

    /// What is typed.
    QString text() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void moveToOpener();

    QLineEdit *edit_;
};
