#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>

class QLabel;
class QProgressBar;
class QTimer;
class ZelPushButton;

/// Shows the progress of work in one or two bars, on top of the other windows.
///
/// The user can't dismiss the dialog: with the cancel button visible and enabled, a click on it,
/// Escape and the close box ask for a cancel, and otherwise Escape and the close box do nothing.
/// The dialog goes when the program calls close(), or at the end of the first bar with auto close.
/// close() emits rejected() and finished() as that of any dialog, but never cancelRequested().
class ZELWIDGETS_EXPORT ZelProgressDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ZelProgressDialog(const QString &text, QWidget *parent = nullptr);

    /// Whether the dialog closes when the first bar reaches its maximum; off at first.
    void setAutoClose(bool autoClose);
    /// A cancel disables the button; enabling it lets the user ask again.
    void setCancelEnabled(bool enabled);
    /// Whether there is a cancel button; there is none at first.
    void setCancelVisible(bool visible);
    /// Shows the dialog this many milliseconds after the first value; a negative number, which it
    /// is at first, leaves showing to the caller.
    void setMinimumDuration(int milliseconds);
    /// Ranges of the bars, 0 to 100 at first. An empty range shows that something is being done.
    void setRange(int minimum, int maximum);
    void setRangeSecond(int minimum, int maximum);
    /// Whether there is a second bar; there is none at first.
    void setShowSecond(bool show);
    /// Lines that are too long are shown without their middle.
    void setText(const QString &text);

public Q_SLOTS:
    /// A value outside the range leaves its bar as it is.
    void setValue(int value);
    void setValueSecond(int value);
    void reject() override;

Q_SIGNALS:
    /// The user wants the work to stop. Emitted once, until the cancel button is enabled again; the
    /// dialog stays until the work has ended.
    void cancelRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createLayout(const QString &text);
    void onCancelRequest();
    void showText(const QString &text);

    QProgressBar *firstBar_;
    QProgressBar *secondBar_;
    QLabel *label_;
    ZelPushButton *cancelButton_;
    QTimer *showTimer_;
    bool autoClose_ = false;
    bool isValueSeen_ = false;
    int minimumDuration_ = -1;
};
