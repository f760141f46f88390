#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>
#include <QDialogButtonBox>

class QCheckBox;

/// A small dialog with a text, buttons, and an optional box "Don't Show Again" whose state the
/// caller stores. Ctrl+C copies the texts. On the GUI thread only, like every dialog.
class ZELWIDGETS_EXPORT ZelMessageDialog : public QDialog
{
    Q_OBJECT

public:
    ZelMessageDialog(QWidget *parent, const QString &title, const QString &text,
                     bool offerDontShowAgain, QDialogButtonBox::StandardButtons buttons,
                     bool showIcon);

    /// True if the user ticked the box, and always if it was not offered.
    bool dontShowAgain() const;
    /// Changes the text of a button; nothing happens if the dialog hasn't got it.
    void setButtonName(QDialogButtonBox::StandardButton button, const QString &name);

private:
    QLayout *createMessage(const QString &text, bool showIcon);

    QCheckBox *dontShowAgain_ = nullptr;
    QDialogButtonBox *buttons_;
};
