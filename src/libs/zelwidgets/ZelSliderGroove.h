#pragma once

#include "ZelSliderMath.h"

#include <QColor>

class QMouseEvent;
class QSlider;

/// What the sliders that paint their own groove share.
namespace ZelSliderGroove {

struct Colors
{
    QColor background;
    QColor fill;
    QColor backgroundDisabled;
    QColor fillDisabled;
};

/// Draws the lines at this height over the slider, mirrored where the slider runs from the right.
/// The pen of the first line is the enabled background.
void paint(QSlider *slider, const Colors &colors, const ZelSliderMath::GrooveLines &lines, int y);

/// Part of the way from the minimum at an event's place.
float partAt(const QSlider *slider, const QMouseEvent *event);

/// Runs the base's press without the page step and its repetition. True if the press is one of the
/// left button that did not take the handle.
template <typename Press>
bool pressesGroove(QSlider *slider, const QMouseEvent *event, Press &&press);

/// Tells assistive technology that the user changed the value.
void announce(QSlider *slider, double value);

bool isLeftButton(const QMouseEvent *event);

template <typename Press>
bool pressesGroove(QSlider *slider, const QMouseEvent *event, Press &&press)
{
    const int pageStep = slider->pageStep();
    slider->setPageStep(0);
    press();
    slider->setPageStep(pageStep);
    return !slider->isSliderDown() && isLeftButton(event);
}

} // namespace ZelSliderGroove
