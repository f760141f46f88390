#include "ZelProgressObserverDialog.h"

#include "ZelProgressText.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScopedValueRollback>

#include <limits>

namespace {

constexpr int leastWidth = 200;
constexpr Qt::WindowFlags windowKind = Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint;

} // namespace

/// A close by the program is no cancel, one by the user is; without cancel the user can't close.
class ZelProgressObserverDialog::Dialog : public QProgressDialog
{
public:
    Dialog(QWidget *parent, bool noCancel)
        : QProgressDialog(parent, windowKind)
        , noCancel_(noCancel)
        , bar_(new QProgressBar(this))
    {
        bar_->setAccessibleName(tr("Progress"));
        setBar(bar_);
    }

    void closeByProgram()
    {
        const QScopedValueRollback closing(isClosing_, true);
        close();
    }
    void setText(const QString &text)
    {
        ensurePolished();
        setLabelText(zelElidedProgressText(text, this));
        // A screen reader announces the values of a bar by the name of the bar.
        bar_->setAccessibleName(text.isEmpty() ? tr("Progress") : text);
    }
    void reject() override
    {
        if (isClosing_)
            QProgressDialog::reject();
        else if (!noCancel_)
            cancel();
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        if (isClosing_)
            QDialog::closeEvent(event);
        else if (noCancel_)
            event->ignore();
        else
            QProgressDialog::closeEvent(event);
    }

private:
    bool noCancel_;
    bool isClosing_ = false;
    QProgressBar *bar_;
};

ZelProgressObserverDialog::ZelProgressObserverDialog(QWidget *parent, const QString &title,
                                                     bool noCancel, bool modal)
    : dialog_(new Dialog(parent, noCancel))
    , title_(title)
    , noCancel_(noCancel)
{
    dialog_->setMinimumWidth(leastWidth);
    dialog_->setAutoClose(false);
    // At the end of its range the dialog would forget that it was cancelled, and by its own clock
    // it would come up before open() and after close().
    dialog_->setAutoReset(false);
    dialog_->setMinimumDuration(std::numeric_limits<int>::max());
    dialog_->reset();
    dialog_->setModal(modal);
    if (noCancel)
        dialog_->setCancelButton(nullptr);
    if (!title.isEmpty())
        dialog_->setWindowTitle(title);
}

ZelProgressObserverDialog::~ZelProgressObserverDialog()
{
    if (dialog_)
        dialog_->deleteLater();
}

void ZelProgressObserverDialog::open(const QString &title)
{
    if (!dialog_)
        return;
    if (title_.isEmpty())
        dialog_->setWindowTitle(title);
    dialog_->reset();
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->show();
    QCoreApplication::processEvents(QEventLoop::ProcessEventsFlags(noCancel_));
}

void ZelProgressObserverDialog::close()
{
    if (dialog_)
        dialog_->closeByProgram();
}

void ZelProgressObserverDialog::setText(const QString &text)
{
    if (dialog_)
        dialog_->setText(text);
}

bool ZelProgressObserverDialog::progress(int value)
{
    if (dialog_)
        dialog_->setValue(value);
    QCoreApplication::processEvents(QEventLoop::ProcessEventsFlags(noCancel_));
    return !cancelled();
}

bool ZelProgressObserverDialog::cancelled()
{
    return dialog_ && dialog_->wasCanceled();
}
