#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>

#include <optional>

struct ZelTrailingNumber
{
    /// The text in front of the number.
    QString stem;
    std::optional<int> number;
};

/// Splits the decimal number off the end of a text. Leading zeros stay in the stem, and so do the
/// digits in front of the last nine, so that stem and number always put together the text again.
ZELCORE_EXPORT ZelTrailingNumber splitTrailingNumber(const QString &text);
