#pragma once

#include <QString>

namespace ZelStylePalette {

/// Whether a key that ends there stays: if the second character behind it is a letter, a digit,
/// "-" or "_".
bool isLeftAlone(QStringView text, qsizetype keyEnd);

/// Puts the value in for one key, in one pass over the text. After a replacement the scan goes on
/// at the place of the occurrence plus the length of the key, whatever the length of the value; so
/// a short value shields what follows it. An occurrence that begins inside a value that was just
/// put in is passed over, with one warning, as it would come back without end. A text that grows
/// beyond all reason stays as it is, with a warning.
QString substituteKey(const QString &text, const QString &key, const QString &value);

} // namespace ZelStylePalette
