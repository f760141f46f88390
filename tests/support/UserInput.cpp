#include "UserInput.h"

#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest>

namespace UserInput {
namespace {

void sendMouse(QWidget *widget, QEvent::Type type, QPoint position, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    const QPointF local(position);
    QMouseEvent event(type, local, widget->window()->mapFromGlobal(widget->mapToGlobal(local)),
                      widget->mapToGlobal(local), button, buttons, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

void press(QWidget *widget, QPoint position, Qt::KeyboardModifiers modifiers,
           Qt::MouseButton button)
{
    sendMouse(widget, QEvent::MouseButtonPress, position, button, button, modifiers);
}

void move(QWidget *widget, QPoint position, Qt::KeyboardModifiers modifiers,
          Qt::MouseButtons buttons)
{
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, buttons, modifiers);
}

void release(QWidget *widget, QPoint position, Qt::KeyboardModifiers modifiers,
             Qt::MouseButton button)
{
    sendMouse(widget, QEvent::MouseButtonRelease, position, button, Qt::NoButton, modifiers);
}

void drag(QWidget *widget, QPoint from, QPoint to, Qt::KeyboardModifiers modifiers,
          Qt::MouseButton button, int steps)
{
    press(widget, from, modifiers, button);
    for (int step = 1; step <= steps; ++step)
        move(widget, from + (to - from) * step / steps, modifiers, button);
    release(widget, to, modifiers, button);
}

bool wheel(QWidget *widget, double steps, Qt::KeyboardModifiers modifiers)
{
    const QPointF local(widget->rect().center());
    QWheelEvent event(local, widget->mapToGlobal(local), QPoint(), QPoint(0, qRound(steps * 120)),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    event.ignore();
    // Only events of the window system go on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
    return event.isAccepted();
}

bool dropOn(QWidget *widget, QPoint position, const QMimeData &data)
{
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted())
        return false;
    // Widgets that say nothing to moves go on accepting.
    QDragMoveEvent move(position, Qt::CopyAction, &data, Qt::LeftButton, {});
    move.accept();
    QCoreApplication::sendEvent(widget, &move);
    QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, {});
    drop.ignore();
    QCoreApplication::sendEvent(widget, &drop);
    return move.isAccepted() && drop.isAccepted();
}

void type(QWidget *widget, const QString &text)
{
    QWidget *focus = widget->window()->focusWidget();
    QTest::keyClicks(focus ? focus : widget, text);
}

class DialogAnswer::Watch : public QTimer
{
public:
    Watch(std::function<void(QDialog *)> answer, int timeoutMs)
        : answer_(std::move(answer))
        , timeoutMs_(timeoutMs)
    {
        clock_.start();
        callOnTimeout(this, [this] { look(); });
        start(5);
    }

    bool finished() const { return finished_; }

private:
    void look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            stop();
            finished_ = true;
            answer_(dialog);
        } else if (clock_.hasExpired(timeoutMs_)) {
            stop();
        }
    }

    std::function<void(QDialog *)> answer_;
    QElapsedTimer clock_;
    int timeoutMs_;
    bool finished_ = false;
};

DialogAnswer::DialogAnswer(std::function<void(QDialog *)> answer, int timeoutMs)
    : watch_(new Watch(std::move(answer), timeoutMs))
{}

DialogAnswer::~DialogAnswer()
{
    delete watch_;
}

bool DialogAnswer::finished() const
{
    return watch_->finished();
}

} // namespace UserInput
