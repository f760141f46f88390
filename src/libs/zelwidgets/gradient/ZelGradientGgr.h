#pragma once

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QString>

/// GIMP gradients, the content of .ggr files.
namespace ZelGradientGgr {

/// Replaces all stops, with interpolation on; opacity stops come only into a gradient that takes
/// them, and only if the file isn't opaque throughout. Numbers of colours are taken as they stand.
///
/// Straight and stepwise segments are the same as in the file, curved ones and those of hues are
/// followed closely by several stops. The program's own foreground and background colours are
/// black and white. Content that is broken or huge changes nothing: false, and why.
ZELWIDGETS_EXPORT bool read(const QByteArray &content, ZelGradient &gradient,
                            QString *name = nullptr, QString *error = nullptr);

} // namespace ZelGradientGgr
