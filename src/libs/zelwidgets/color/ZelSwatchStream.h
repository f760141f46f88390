#pragma once

#include <ZelCore/ZelColor>

#include <QByteArray>

#include <optional>
#include <vector>

/// The stored form of a swatch list: a header and the colours as XYZ with their names.
namespace ZelSwatchStream {

struct Content
{
    std::vector<ZelColor> colors;
    /// False if there was more in the data than could be understood.
    bool isWhole = true;
};

QByteArray write(const std::vector<ZelColor> &colors);

/// Nothing if the data are too short for a header. A record that is cut off or holds numbers that
/// aren't finite is dropped; one of an unknown version is white.
std::optional<Content> read(const QByteArray &data);

} // namespace ZelSwatchStream
