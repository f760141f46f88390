#include "ViewportGestures.h"

#include "GestureKeys.h"

#include <ZelWidgets/ZelMouseActionSettings>

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

constexpr double unitsOfNotch = 120;

const ZelMouseActionSettings *table()
{
    return ZelMouseActionSettings::instance();
}

} // namespace

ViewportGestures::ViewportGestures(QObject *parent)
    : QObject(parent)
{}

void ViewportGestures::press(const QMouseEvent *event)
{
    // A further button changes what the drag is.
    if (state_ == State::Dragging)
        Q_EMIT dragEnded();
    state_ = State::Pressed;
    pressed_ = event->pos();
    last_ = event->position();
}

void ViewportGestures::move(const QMouseEvent *event)
{
    if (state_ == State::Pressed) {
        if ((event->pos() - pressed_).manhattanLength() < QApplication::startDragDistance())
            return;
        const ZelMouseAction *action = table()->findAction(
            ZelMouseShortcut::Drag, event->buttons(), GestureKeys::withDigit(event->modifiers()));
        state_ = action ? State::Dragging : State::Ignored;
        if (!action) {
            Q_EMIT unknown();
            return;
        }
        action_ = action->id();
        Q_EMIT dragBegan();
    }
    if (state_ != State::Dragging)
        return;
    const QPointF way = event->position() - last_;
    last_ = event->position();
    Q_EMIT dragged(action_, way);
}

void ViewportGestures::release(const QMouseEvent *event)
{
    const State before = state_;
    if (before == State::Dragging)
        Q_EMIT dragEnded();
    // The buttons of a drag go up one after the other, and mean nothing each.
    state_ = event->buttons() ? State::Ignored : State::Idle;
    if (before == State::Pressed)
        tellClick(
            table()->findClickEvent(event->button(), GestureKeys::withDigit(event->modifiers())),
            event->pos());
}

void ViewportGestures::doubleClick(const QMouseEvent *event)
{
    state_ = State::Ignored;
    tellClick(table()->findAction(ZelMouseShortcut::DoubleClick, {},
                                  GestureKeys::withDigit(event->modifiers())),
              event->pos());
}

void ViewportGestures::tellClick(const ZelMouseAction *action, const QPoint &place)
{
    if (action)
        Q_EMIT clicked(action->id(), place);
    else
        Q_EMIT unknown();
}

void ViewportGestures::wheel(const QWheelEvent *event)
{
    const ZelMouseAction *action = table()->findAction(ZelMouseShortcut::Wheel, event->buttons(),
                                                       GestureKeys::withDigit(event->modifiers()));
    // With Alt some platforms turn the wheel sideways.
    const QPoint turned = event->angleDelta();
    const int units = turned.y() != 0 ? turned.y() : turned.x();
    if (action && units != 0)
        Q_EMIT wheelTurned(action->id(), units / unitsOfNotch);
}

void ViewportGestures::cancel()
{
    state_ = State::Ignored;
}
