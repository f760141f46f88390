#pragma once

#include <ZelWidgets/ZelColorSlider>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class ZelColorLineEdit;

/// One channel of a colour: its name, a number field and a slider on a strip of colours.
///
/// The field keeps decimals and numbers that the slider cannot show; its number counts.
class ZELWIDGETS_EXPORT ZelColorSliderEdit : public QWidget
{
    Q_OBJECT

public:
    /// showGamma tells that the numbers of the colour are display values.
    ZelColorSliderEdit(const ZelColor &color, ZelColorSlider::RGBMode mode, const QString &label,
                       bool showGamma, QWidget *parent = nullptr);
    ~ZelColorSliderEdit() override;

    ZelColorSlider::RGBMode getMode() const { return mode_; }
    /// The number of the field.
    float value() const;
    /// Moves the slider to the rounded number, as a user would. What isn't a number is 0.
    void setValue(float value);
    /// Shows the channel of this colour in strip, slider and field, without a signal.
    void setColor(const ZelColor &color, bool showGamma);
    /// The strip alone.
    void updatePixmap(const ZelColor &color, bool showGamma);

Q_SIGNALS:
    /// The slider was moved, or the field has a new number; that number, rounded. Ask value() for
    /// its decimals.
    void valueChanged(int value);

protected Q_SLOTS:
    void editValueChanged(double val);
    void sliderUpdated(int value);

private:
    void createFields(const QString &label);
    void setEditValue(float value);

    ZelColorSlider *slider_;
    ZelColorLineEdit *edit_;
    ZelColorSlider::RGBMode mode_;
};
