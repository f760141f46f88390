#include "ZelProgressDialog.h"

#include "ZelProgressText.h"
#include "theme/ZelFontMetrics.h"
#include "theme/ZelPushButton.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int widthInM = 25;
constexpr Qt::WindowFlags windowKind =
    Qt::Tool | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint;

} // namespace

ZelProgressDialog::ZelProgressDialog(const QString &text, QWidget *parent)
    : QDialog(parent, windowKind)
    , firstBar_(new QProgressBar(this))
    , secondBar_(new QProgressBar(this))
    , label_(new QLabel(this))
    , cancelButton_(new ZelPushButton(tr("Cancel"), this))
    , showTimer_(new QTimer(this))
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    createLayout(text);
    setMinimumWidth(widthInM * ZelFontMetrics(this).widthM());

    showTimer_->setSingleShot(true);
    connect(showTimer_, &QTimer::timeout, this, &QWidget::show);
    connect(cancelButton_, &QPushButton::clicked, this, &ZelProgressDialog::onCancelRequest);
}

void ZelProgressDialog::createLayout(const QString &text)
{
    label_->setAlignment(Qt::AlignHCenter);
    showText(text);
    secondBar_->setAccessibleName(tr("Current step"));
    secondBar_->hide();
    cancelButton_->setFocusPolicy(Qt::NoFocus);
    cancelButton_->hide();

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label_);
    layout->addWidget(firstBar_);
    layout->addWidget(secondBar_);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cancelButton_, 0, Qt::AlignRight);
    layout->addLayout(row);
}

void ZelProgressDialog::setAutoClose(bool autoClose)
{
    autoClose_ = autoClose;
}

void ZelProgressDialog::setCancelEnabled(bool enabled)
{
    cancelButton_->setEnabled(enabled);
}

void ZelProgressDialog::setCancelVisible(bool visible)
{
    cancelButton_->setVisible(visible);
}

void ZelProgressDialog::setMinimumDuration(int milliseconds)
{
    minimumDuration_ = milliseconds;
    if (milliseconds < 0) {
        showTimer_->stop();
        return;
    }
    showTimer_->setInterval(milliseconds);
    if (isValueSeen_)
        showTimer_->start();
}

void ZelProgressDialog::setRange(int minimum, int maximum)
{
    firstBar_->setRange(minimum, maximum);
}

void ZelProgressDialog::setRangeSecond(int minimum, int maximum)
{
    secondBar_->setRange(minimum, maximum);
}

void ZelProgressDialog::setShowSecond(bool show)
{
    secondBar_->setVisible(show);
}

void ZelProgressDialog::setText(const QString &text)
{
    showText(text);
    adjustSize();
}

void ZelProgressDialog::showText(const QString &text)
{
    ensurePolished();
    label_->setText(zelElidedProgressText(text, this));
    label_->setToolTip(label_->text() == text ? QString() : text);
    // A screen reader announces the values of a bar by the name of the bar.
    firstBar_->setAccessibleName(text.isEmpty() ? tr("Progress") : text);
}

void ZelProgressDialog::setValue(int value)
{
    firstBar_->setValue(value);
    isValueSeen_ = true;
    if (minimumDuration_ >= 0 && !showTimer_->isActive())
        showTimer_->start();
    if (autoClose_ && value >= firstBar_->maximum())
        close();
}

void ZelProgressDialog::setValueSecond(int value)
{
    secondBar_->setValue(value);
}

void ZelProgressDialog::onCancelRequest()
{
    if (!cancelButton_->isEnabled())
        return;
    cancelButton_->setEnabled(false);
    Q_EMIT cancelRequested();
}

void ZelProgressDialog::reject()
{
    if (cancelButton_->isVisibleTo(this))
        onCancelRequest();
}

void ZelProgressDialog::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous()) {
        event->ignore();
        // Later, as a close() in answer to the request would do nothing while this one is going on.
        QMetaObject::invokeMethod(this, &ZelProgressDialog::reject, Qt::QueuedConnection);
        return;
    }
    showTimer_->stop();
    if (isVisible())
        QDialog::reject();
    event->accept();
}
