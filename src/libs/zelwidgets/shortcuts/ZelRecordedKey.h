#pragma once

#include <QKeyCombination>

#include <optional>

class QKeyEvent;

/// What a key press means as a part of a key sequence.
namespace ZelRecordedKey {

/// Nothing for a modifier or a lock that is pressed alone, and for dead keys. Letters of other
/// scripts become the Latin ones of the same place, so that the shortcut works in every layout; a
/// Shift that only makes a symbol is left out, the keypad is told apart.
std::optional<QKeyCombination> combination(const QKeyEvent &event);

} // namespace ZelRecordedKey
