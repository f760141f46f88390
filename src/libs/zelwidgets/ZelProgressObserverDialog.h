#pragma once

#include <ZelCore/IProgressObserver>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>

class QWidget;

/// Shows the progress that work tells its observer in a QProgressDialog, in per cent.
///
/// The work runs on the GUI thread; each progress() and open() lets the event loop run for a
/// moment, without user input if there is no cancel. The dialog dies with its parent, after which
/// calls do nothing and the work counts as not cancelled.
class ZELWIDGETS_EXPORT ZelProgressObserverDialog : public IProgressObserver
{
public:
    /// With an empty title the dialog takes that of open().
    ZelProgressObserverDialog(QWidget *parent, const QString &title, bool noCancel, bool modal);
    ~ZelProgressObserverDialog() override;
    ZelProgressObserverDialog(const ZelProgressObserverDialog &) = delete;
    ZelProgressObserverDialog &operator=(const ZelProgressObserverDialog &) = delete;

    /// Shows the dialog, with no progress and not cancelled.
    void open(const QString &title) override;
    /// Hides the dialog; that it was cancelled before can still be asked.
    void close() override;
    void setText(const QString &text) override;
    bool progress(int value) override;
    bool cancelled() override;

private:
    class Dialog;

    QPointer<Dialog> dialog_;
    QString title_;
    bool noCancel_;
};
