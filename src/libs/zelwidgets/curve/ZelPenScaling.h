#pragma once

#include <ZelWidgets/zelwidgets_export.h>

class QPainter;

/// Which scale of a painter's transform a pen's width is freed from: that of one axis, or the
/// smaller or larger of both.
enum class ZelScaleMethod : int { X = 0, Y = 1, Min = 2, Max = 3 };

/// Makes the painter's pen as wide on screen as its width says, however far the painter is zoomed.
///
/// Cosmetic pens stay as they are. A pen that would become thinner than a pixel becomes cosmetic.
ZELWIDGETS_EXPORT void unscalePenWidth(QPainter *painter, ZelScaleMethod method);
