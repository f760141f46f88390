#pragma once

#include "ZelAccessibleValue.h"

#include <QSlider>

/// A colour slider for assistive technology: its position, in the text of a field if it has one.
class ZelColorSliderAccessible : public ZelAccessibleValue
{
public:
    explicit ZelColorSliderAccessible(QWidget *slider)
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
