#include "ZelKeyRecorder.h"

#include "ZelRecordedKey.h"

#include <QKeyEvent>
#include <QTimerEvent>

namespace {

constexpr int defaultPause = 1000;
constexpr qsizetype mostKeys = 4;

} // namespace

ZelKeyRecorder::ZelKeyRecorder(QWidget *parent)
    : QLineEdit(parent)
    , pause_(defaultPause)
{
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    showKeys();
}

QKeySequence ZelKeyRecorder::sequence() const
{
    const auto key = [this](qsizetype i) {
        return i < keys_.size() ? keys_[i] : QKeyCombination::fromCombined(0);
    };
    return {key(0), key(1), key(2), key(3)};
}

void ZelKeyRecorder::setPause(int milliseconds)
{
    pause_ = qMax(0, milliseconds);
}

void ZelKeyRecorder::start()
{
    keys_.clear();
    recording_ = true;
    setFocus(Qt::OtherFocusReason);
    showKeys();
}

void ZelKeyRecorder::stop()
{
    timer_.stop();
    if (!recording_)
        return;
    recording_ = false;
    showKeys();
    Q_EMIT finished(sequence());
}

void ZelKeyRecorder::reset()
{
    timer_.stop();
    recording_ = false;
    keys_.clear();
    showKeys();
}

void ZelKeyRecorder::showKeys()
{
    const QString text = sequence().toString(QKeySequence::NativeText);
    setText(recording_ && !text.isEmpty() ? text + QStringLiteral(", ") + QChar(0x2026) : text);
    setPlaceholderText(recording_ ? tr("Press the keys") : tr("No keys"));
}

bool ZelKeyRecorder::event(QEvent *event)
{
    if (!recording_)
        return QLineEdit::event(event);
    switch (event->type()) {
    case QEvent::KeyPress:
        record(*static_cast<QKeyEvent *>(event));
        [[fallthrough]];
    case QEvent::ShortcutOverride:
    case QEvent::KeyRelease:
        event->accept();
        return true;
    default:
        return QLineEdit::event(event);
    }
}

void ZelKeyRecorder::record(const QKeyEvent &event)
{
    const auto combination = ZelRecordedKey::combination(event);
    if (event.isAutoRepeat() || !combination)
        return;
    keys_.append(*combination);
    showKeys();
    Q_EMIT recorded(sequence());
    if (keys_.size() >= mostKeys)
        stop();
    else if (recording_)
        timer_.start(pause_, this);
}

void ZelKeyRecorder::keyPressEvent(QKeyEvent *event)
{
    const bool starts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    if (starts && !event->modifiers().testFlag(Qt::ControlModifier))
        start();
    else
        event->ignore();
}

void ZelKeyRecorder::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
    start();
}

void ZelKeyRecorder::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    stop();
}

void ZelKeyRecorder::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == timer_.timerId())
        stop();
    else
        QLineEdit::timerEvent(event);
}
