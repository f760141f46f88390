#include "GestureKeys.h"

#include <ZelWidgets/KeyStateInformation>

QKeyCombination GestureKeys::withDigit(Qt::KeyboardModifiers modifiers)
{
    for (const Qt::Key digit : {Qt::Key_1, Qt::Key_2}) {
        if (KeyStateInformation::isKeyDown(digit))
            return QKeyCombination(modifiers, digit);
    }
    return QKeyCombination(modifiers, Qt::Key_unknown);
}
