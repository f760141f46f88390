#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

#include <functional>

class QDialog;
class QMimeData;
class QWidget;

/// What a user does with mouse and keyboard, for tests. All positions are in the widget's own
/// coordinates; the events go through the application, so event filters see them.
namespace UserInput {

void press(QWidget *widget, QPoint position, Qt::KeyboardModifiers modifiers = {},
           Qt::MouseButton button = Qt::LeftButton);
void move(QWidget *widget, QPoint position, Qt::KeyboardModifiers modifiers = {},
          Qt::MouseButtons buttons = Qt::LeftButton);
void release(QWidget *widget, QPoint position, Qt::KeyboardModifiers modifiers = {},
             Qt::MouseButton button = Qt::LeftButton);
/// Press at one point, moves in steps, release at the other.
void drag(QWidget *widget, QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {},
          Qt::MouseButton button = Qt::LeftButton, int steps = 4);
/// Wheel steps (1 is a notch of 15 degrees; positive turns away from the user). True if the
/// widget or an ancestor accepted the event.
bool wheel(QWidget *widget, double steps, Qt::KeyboardModifiers modifiers = {});
/// Comes with the data, moves and drops them; whether they were taken. An item view takes drops on
/// its viewport.
bool dropOn(QWidget *widget, QPoint position, const QMimeData &data);
/// Types into the focus widget of the widget's window, or into the widget.
void type(QWidget *widget, const QString &text);

/// Waits for the next modal dialog and gives it to the answer; the answer has to close it. The
/// result of finished() is true once that happened; a dialog that does not come within the time
/// is a fault that the caller sees there.
class DialogAnswer
{
public:
    explicit DialogAnswer(std::function<void(QDialog *)> answer, int timeoutMs = 5000);
    ~DialogAnswer();
    DialogAnswer(const DialogAnswer &) = delete;
    DialogAnswer &operator=(const DialogAnswer &) = delete;
    bool finished() const;

private:
    class Watch;
    Watch *watch_;
};

} // namespace UserInput
