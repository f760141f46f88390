#pragma once

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/zelwidgets_export.h>

#include <QString>

/// Whole gradients as text, for copy and paste.
///
/// A line of the name and version of the form, then a line for each thing, numbers with a point:
///
///     zelgradient 1
///     blend on|off
///     opacity LOCATION SLOPE-IN SLOPE-OUT OPACITY
///     color LOCATION SLOPE-IN SLOPE-OUT GAIN xyz|rgb|hsv|cmyk|lab COMPONENTS... [NAME]
///
/// Names are percent-encoded.
namespace ZelGradientText {

/// Loses nothing, but for numbers that are not finite, which become 0.
ZELWIDGETS_EXPORT QString write(const ZelGradient &gradient);

/// Replaces all stops and the blend mode; opacity stops go only into a gradient that takes them.
/// A text that is not wholly of this form, or huge, changes nothing: false, and why.
ZELWIDGETS_EXPORT bool read(const QString &text, ZelGradient &gradient, QString *error = nullptr);

} // namespace ZelGradientText
