#include "ZelGestureChoice.h"

#include <QCoreApplication>

namespace ZelGestureChoice {

using Shortcut = ZelMouseShortcut;

QList<Shortcut::MouseEventAction> events(ZelMouseAction::Category category)
{
    switch (category) {
    case ZelMouseAction::OneWay:
        return {Shortcut::Wheel, Shortcut::Drag};
    case ZelMouseAction::DragOnly:
        return {Shortcut::Drag};
    case ZelMouseAction::OneShot:
        break;
    }
    return {Shortcut::LeftClick, Shortcut::RightClick, Shortcut::CentreClick,
            Shortcut::DoubleClick};
}

QString eventText(Shortcut::MouseEventAction event)
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("ZelGestureChoice", source);
    };
    switch (event) {
    case Shortcut::LeftClick:
        return text("Left click");
    case Shortcut::RightClick:
        return text("Right click");
    case Shortcut::CentreClick:
        return text("Middle click");
    case Shortcut::DoubleClick:
        return text("Double click");
    case Shortcut::Wheel:
        return text("Wheel");
    case Shortcut::Drag:
        return text("Drag");
    case Shortcut::None:
        break;
    }
    return {};
}

bool hasButtons(Shortcut::MouseEventAction event)
{
    return event == Shortcut::Drag;
}

Shortcut normalized(const Shortcut &gesture)
{
    const auto event = gesture.getEvent();
    constexpr Qt::MouseButtons known = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;
    constexpr Qt::KeyboardModifiers knownKeys =
        Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier;
    const Qt::MouseButtons buttons =
        hasButtons(event) ? gesture.getMouseModifiers() & known : Qt::MouseButtons();
    const Qt::KeyboardModifiers modifiers =
        gesture.getKeyCombination().keyboardModifiers() & knownKeys;
    Qt::Key key = gesture.getKeyCombination().key();
    const bool isDigit = key == Qt::Key_1 || key == Qt::Key_2;
    if (!isDigit || (!modifiers && !buttons))
        key = Qt::Key_unknown;
    return {event, QKeyCombination(modifiers, key), buttons};
}

bool isComplete(const Shortcut &gesture)
{
    return gesture.getEvent() != Shortcut::None &&
           (!hasButtons(gesture.getEvent()) || gesture.getMouseModifiers());
}

} // namespace ZelGestureChoice
