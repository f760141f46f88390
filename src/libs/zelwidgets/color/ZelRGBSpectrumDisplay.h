#pragma once

#include <ZelWidgets/ZelSpectrumDisplay>

class ZelHueSlider;
class ZelRGBSpectrum;

/// A plane of saturation and value with a slider for its hue.
///
/// While hidden it only keeps the colour; it shows it once it is shown itself. What the user picks
/// is emitted as HSV, so that greys keep the hue.
class ZELWIDGETS_EXPORT ZelRGBSpectrumDisplay : public ZelSpectrumDisplay
{
    Q_OBJECT

public:
    explicit ZelRGBSpectrumDisplay(ZelColor const &color, QWidget *parent = nullptr);

    using ZelSpectrumDisplay::colorChanged;

public Q_SLOTS:
    void setColor(ZelColor color) override;

protected Q_SLOTS:
    void hueChanged(int hue);
    void colorChanged(float s, float v);

protected:
    void showEvent(QShowEvent *event) override;

private:
    ZelColor color_;
    ZelRGBSpectrum *spectrum_;
    ZelHueSlider *hueSlider_;
};
