#include "LogPanel.h"

#include <ZelWidgets/ZelStyleIcon>

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTime>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int keptLines = 2000;

QPointer<LogPanel> listener;
QtMessageHandler previousHandler = nullptr;

QString kindOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    }
    return {};
}

} // namespace

LogPanel::LogPanel(QWidget *parent)
    : QWidget(parent)
    , title_(new QLabel(tr("Signals and messages"), this))
    , clearButton_(new QToolButton(this))
    , view_(new QPlainTextEdit(this))
{
    view_->setObjectName(QStringLiteral("GalleryCode"));
    view_->setReadOnly(true);
    view_->setMaximumBlockCount(keptLines);
    view_->setLineWrapMode(QPlainTextEdit::NoWrap);
    view_->setAccessibleName(tr("Signals and messages"));
    view_->setPlaceholderText(tr("Signals of the page's widgets and Qt's messages appear here."));

    title_->setObjectName(QStringLiteral("GalleryPanelTitle"));
    clearButton_->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/delete.svg")));
    clearButton_->setToolTip(tr("Clear the log"));
    clearButton_->setAccessibleName(clearButton_->toolTip());
    clearButton_->setAutoRaise(true);
    connect(clearButton_, &QToolButton::clicked, this, &LogPanel::clear);

    auto *header = new QHBoxLayout;
    header->addWidget(title_, 1);
    header->addWidget(clearButton_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 8);
    layout->setSpacing(4);
    layout->addLayout(header);
    layout->addWidget(view_, 1);

    listener = this;
    previousHandler = qInstallMessageHandler(&LogPanel::handleMessage);
}

LogPanel::~LogPanel()
{
    qInstallMessageHandler(std::exchange(previousHandler, nullptr));
}

void LogPanel::followInTabOrder(QWidget *widget)
{
    setTabOrder(widget, clearButton_);
    setTabOrder(clearButton_, view_);
}

QWidget *LogPanel::lastTabStop() const
{
    return view_;
}

void LogPanel::hideTitle()
{
    title_->clear();
}

QString LogPanel::text() const
{
    return view_->toPlainText();
}

void LogPanel::addSignal(const QString &entry)
{
    addLine(QStringLiteral("signal"), entry);
}

void LogPanel::clear()
{
    view_->clear();
}

void LogPanel::addLine(const QString &kind, const QString &entry)
{
    const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz"));
    view_->appendPlainText(time + QStringLiteral("  ") + kind.leftJustified(10) + entry);
}

void LogPanel::handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (previousHandler)
        previousHandler(type, context, text);
    // Queued: a message may come from another thread, or from inside a paint of this very view.
    if (LogPanel *panel = listener)
        QMetaObject::invokeMethod(
            panel, [panel, type, text] { panel->addLine(kindOf(type), text); },
            Qt::QueuedConnection);
}
