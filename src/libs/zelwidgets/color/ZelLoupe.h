#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

class QColor;
class QImage;
class QPainter;
class QPalette;

/// How the loupe of the eye dropper looks and where it stands; lengths are device-independent
/// pixels.
namespace ZelLoupe {

constexpr int pixels = 15;
constexpr int side = 240;

/// The magnified pixels in a grid, the middle one marked.
void paintPixels(QPainter *painter, const QRect &rect, const QImage &pixels);
/// A swatch of the colour and its value beside it; an invalid colour has neither.
void paintValue(QPainter *painter, const QRect &rect, const QColor &color, const QPalette &palette);

/// Beside the cursor, on whichever side there is room on the screen, and clear of the pixels that
/// are magnified.
QPoint placeBeside(const QPoint &cursor, const QSize &size, const QRect &screen);

} // namespace ZelLoupe
