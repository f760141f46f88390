#pragma once

#include <QBrush>
#include <QColor>
#include <QPixmap>
#include <QRect>

class QPainter;
class QWidget;

/// The round handle of sliders that lie on a strip of colours: where it is, and how both are
/// painted. Lengths run along the strip, thickness across; all in device-independent pixels.
namespace ZelColorHandle {

int diameter(int thickness);
/// From the edge of the strip to the handle, across.
int across(int thickness);
/// From the start of the strip to the handle, when it stands the steps from the start of a span.
int offset(int steps, int span, int length, int diameter);
/// The step that a place along the strip stands for: 0 at its start, one more than the span at its
/// end.
int stepAt(int place, int length, int span);

/// What is painted; the strip has the size of the widget in pixels of the device.
struct Look
{
    QPixmap strip;
    QRect handle;
    QColor ring;
    QBrush filling;
};

/// The size of the widget in pixels of its device.
QSize scaledSize(const QWidget *widget);
/// A strip that is as large as the widget, in pixels of its device.
QPixmap scaled(const QPixmap &strip, const QWidget *widget);
/// A strip with round ends and the handle on it; faint if the widget is disabled, and marked if it
/// has the focus.
void paint(QWidget *widget, const Look &look);

} // namespace ZelColorHandle
