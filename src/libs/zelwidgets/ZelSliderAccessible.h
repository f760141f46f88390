#pragma once

#include "ZelAccessibleValue.h"

#include <QSlider>

/// A slider whose position is its number, for assistive technology.
class ZelSliderAccessible : public ZelAccessibleValue
{
public:
    explicit ZelSliderAccessible(QWidget *slider)
        : ZelAccessibleValue(slider, QAccessible::Slider)
    {}
    QVariant currentValue() const override { return slider()->value(); }
    void setCurrentValue(const QVariant &value) override { slider()->setValue(value.toInt()); }
    QVariant maximumValue() const override { return slider()->maximum(); }
    QVariant minimumValue() const override { return slider()->minimum(); }
    QVariant minimumStepSize() const override { return slider()->singleStep(); }

protected:
    QSlider *slider() const { return static_cast<QSlider *>(object()); }
};
