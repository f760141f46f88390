#pragma once

#include <QKeyCombination>
#include <Qt>

/// What the keyboard adds to a mouse gesture.
namespace GestureKeys {

/// The modifiers with the digit, 1 or 2, that is held down, wherever the focus is.
QKeyCombination withDigit(Qt::KeyboardModifiers modifiers);

} // namespace GestureKeys
