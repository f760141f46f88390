#pragma once

#include <QKeyEvent>
#include <QSlider>

/// What the keys do on colour sliders: a hundredth of the range, with Shift a tenth.
namespace ZelColorSliderKeys {

inline void setSteps(QSlider *slider)
{
    const double span = double(slider->maximum()) - slider->minimum();
    slider->setSingleStep(std::max(1, qRound(span / 100)));
    slider->setPageStep(std::max(1, qRound(span / 10)));
}

/// Whether the key was an arrow with Shift, which is then done.
inline bool goByTenth(QSlider *slider, QKeyEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ShiftModifier))
        return false;
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Up:
        slider->triggerAction(QSlider::SliderPageStepAdd);
        break;
    case Qt::Key_Left:
    case Qt::Key_Down:
        slider->triggerAction(QSlider::SliderPageStepSub);
        break;
    default:
        return false;
    }
    event->accept();
    return true;
}

} // namespace ZelColorSliderKeys
