#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialogButtonBox>
#include <QMessageBox>

class QCheckBox;

/// A message box with a box "Don't Show Again" that remembers in the settings whether it is to be
/// shown and what the user chose.
///
///     ZelDontShowAgainDialog dialog(QStringLiteral("OverwriteTexture"), QMessageBox::Question,
///                                   tr("Textures"), tr("Overwrite the file?"),
///                                   QMessageBox::Yes | QMessageBox::No, this);
///     if (dialog.exec() == QMessageBox::Yes)
///         ...
///
/// Buttons are named by either enumeration; their values are the same. Ctrl+C copies the texts. On
/// the GUI thread only, like every dialog.
class ZELWIDGETS_EXPORT ZelDontShowAgainDialog : public QMessageBox
{
    Q_OBJECT

public:
    /// The name is that of the settings; the title is the application's name.
    explicit ZelDontShowAgainDialog(const QString &name, QWidget *parent = nullptr);
    ZelDontShowAgainDialog(const QString &name, QMessageBox::Icon icon, const QString &title,
                           const QString &text, QMessageBox::StandardButtons buttons,
                           QWidget *parent = nullptr);
    ZelDontShowAgainDialog(const QString &name, QMessageBox::Icon icon, const QString &title,
                           const QString &text, QDialogButtonBox::StandardButtons buttons,
                           QWidget *parent = nullptr);

    /// Shows the box if it is wanted, and returns the button; otherwise returns the stored choice,
    /// -1 if there is none. Cancel and a close without an answer store nothing.
    int exec() override;

    using QMessageBox::button;
    QAbstractButton *button(QDialogButtonBox::StandardButton which) const;
    void setButtons(QMessageBox::StandardButtons buttons);
    void setButtons(QDialogButtonBox::StandardButtons buttons);
    /// Makes the button the default one; adds it if the box hasn't got it.
    using QMessageBox::setDefaultButton;
    void setDefaultButton(QMessageBox::StandardButton which);
    void setDefaultButton(QDialogButtonBox::StandardButton which);
    /// Only kept for the caller; Cancel at first.
    void setDontShowButton(QMessageBox::StandardButton which);
    void setDontShowButton(QDialogButtonBox::StandardButton which);
    int dontShowButton() const;
    /// The button that Escape and closing the window stand for. Without one it is Cancel, else No,
    /// if the box has it.
    void setEscapeKey(QMessageBox::StandardButton which);
    void setEscapeKey(QDialogButtonBox::StandardButton which);
    /// Shows the box whatever the settings say.
    void setForceShow(bool force);
    /// Shows the box as long as no choice is stored, even if the settings say not to.
    void setRememberUserChoice(bool remember);
    /// The key of the settings, in the unnamed group, under which it is stored whether to show the
    /// box.
    QString settingsName() const;
    /// Whether the last exec() showed the box.
    bool wasShown() const;

public Q_SLOTS:
    void reject() override;

private:
    bool storedShow() const;
    int storedChoice() const;
    void chooseEscapeKey();

    QString key_;
    QString choiceKey_;
    QCheckBox *dontShowAgain_;
    int dontShowButton_ = QDialogButtonBox::Cancel;
    int escapeKey_ = 0;
    bool forceShow_ = false;
    bool wasShown_ = false;
    bool rememberUserChoice_ = false;
};
