#pragma once

#include <QKeyEvent>
#include <QLocale>

/// The decimal key of the keypad types the locale's decimal point, whatever the keyboard's layout
/// puts on it.
namespace ZelKeypadDecimal {

inline bool isDecimalKey(const QKeyEvent &event)
{
    return event.modifiers() == Qt::KeypadModifier &&
           (event.key() == Qt::Key_Period || event.key() == Qt::Key_Comma);
}

/// Hands the key press on; the original is accepted as its copy is.
template <typename Base>
void press(QKeyEvent *event, const QLocale &locale, Base &&base)
{
    if (!isDecimalKey(*event)) {
        base(event);
        return;
    }
    QKeyEvent typed(event->type(), event->key(), Qt::NoModifier, locale.decimalPoint(),
                    event->isAutoRepeat(), static_cast<quint16>(event->count()));
    base(&typed);
    event->setAccepted(typed.isAccepted());
}

} // namespace ZelKeypadDecimal
