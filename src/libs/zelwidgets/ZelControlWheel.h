#pragma once

#include <QWheelEvent>

#include <memory>

/// The wheel over an editor belongs to the panel around it; with Control it turns the number.
namespace ZelControlWheel {

/// Hands the event on with other modifiers; the original is accepted as its copy is.
template <typename Base>
void forwardAs(QWheelEvent *event, Qt::KeyboardModifiers modifiers, Base &&base)
{
    const std::unique_ptr<QWheelEvent> copy(event->clone());
    copy->setModifiers(modifiers);
    base(copy.get());
    event->setAccepted(copy->isAccepted());
}

/// Control turns by single steps, Control and Shift by large ones; other modifiers don't matter.
/// Without Control the event is ignored.
template <typename Base>
void turn(QWheelEvent *event, Base &&base)
{
    const Qt::KeyboardModifiers held = event->modifiers();
    if (!held.testFlag(Qt::ControlModifier))
        event->ignore();
    else
        forwardAs(event, held & Qt::ShiftModifier ? Qt::ControlModifier : Qt::NoModifier, base);
}

/// Control and nothing else turns, by what the base does with these modifiers. Anything else is
/// ignored.
template <typename Base>
void turnByControlAlone(QWheelEvent *event, Qt::KeyboardModifiers modifiers, Base &&base)
{
    if (event->modifiers() != Qt::ControlModifier)
        event->ignore();
    else
        forwardAs(event, modifiers, base);
}

} // namespace ZelControlWheel
