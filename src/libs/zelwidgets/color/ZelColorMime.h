#pragma once

#include <ZelSceneGraph/Color>

#include <optional>

class QMimeData;

/// Colours as they are dragged and dropped, between the application's own widgets and other
/// programs. Data that isn't a colour, or is broken, gives no colour; it is never trusted.
namespace ZelColorMime {

/// A list of sub-colours goes by ZelMimeTypes::MULTI_COLOR, one colour by ZelMimeTypes::COLOR; the
/// active colour goes along by both forms of a single colour ("application/x-color" is the other).
void encode(const zelsg::Color &color, QMimeData *data);

/// Whether the data claims to hold a single colour; cheap, the data aren't looked at.
bool hasColor(const QMimeData *data);
/// The same for a list of sub-colours.
bool hasMultiColor(const QMimeData *data);

/// The single colour: our own form, with its name, before "application/x-color", without alpha.
/// The latter is Qt's colour or four numbers of 16 bits, as X11's programs have it.
std::optional<ZelColor> color(const QMimeData *data);
/// The list, with names, weights and active index, as a colour of its own.
std::optional<zelsg::Color> multiColor(const QMimeData *data);

} // namespace ZelColorMime
