#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QSizeF>

class QScreen;

/// Where the colour dialog comes up, and how large. Its size is stored in inches, so that it is as
/// large to the eye on any screen.
namespace ZelColorDialogPlacement {

/// Pixels in an inch, both ways.
struct Density
{
    qreal x;
    qreal y;
};

/// Of a screen that doesn't know, or of none, 96.
Density densityOf(const QScreen *screen);
QSizeF toInches(QSize pixels, Density density);
/// An unusable stored size gives a quarter more than the hint, or less if that leaves the window
/// whole on the area. No window is smaller than the hint; else none is larger than the area, if
/// there is one.
QSize windowSize(QSizeF inches, Density density, QSize hint, QSize area);
/// The place for a window that would lie there, moved so that its right and lower edges are on the
/// area; null is no area.
QPoint keptOn(const QRect &area, const QRect &window);

} // namespace ZelColorDialogPlacement
