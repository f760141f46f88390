#pragma once

#include "ZelStylePalette.h"

#include <optional>

namespace ZelStylePalette {

/// The short way of substitute() for texts in which each key stands between marks as it should:
/// every "@" of the text belongs to one whole key, and no two keys are so close that the order of
/// the keys would matter. One pass over the text instead of one for each key; nothing if the text
/// or the palette is of another kind.
std::optional<QString> substituteMarkedKeys(const QString &text, const Colors &colors);

} // namespace ZelStylePalette
