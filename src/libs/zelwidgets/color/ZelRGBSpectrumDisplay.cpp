#include "ZelRGBSpectrumDisplay.h"

#include "color/ZelHueSlider.h"
#include "color/ZelRGBSpectrum.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

ZelRGBSpectrumDisplay::ZelRGBSpectrumDisplay(ZelColor const &color, QWidget *parent)
    : ZelSpectrumDisplay(parent)
    , color_(color)
    , spectrum_(new ZelRGBSpectrum(color, this))
    , hueSlider_(new ZelHueSlider(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(spectrum_);
    layout->addWidget(hueSlider_);
    spectrum_->setAccessibleName(tr("Saturation and value"));
    hueSlider_->setAccessibleName(tr("Hue"));
    setFocusProxy(spectrum_);
    setColor(color);
    connect(spectrum_, &ZelRGBSpectrum::colorChanged, this,
            qOverload<float, float>(&ZelRGBSpectrumDisplay::colorChanged));
    connect(hueSlider_, &ZelHueSlider::valueChanged, this, &ZelRGBSpectrumDisplay::hueChanged);
}

void ZelRGBSpectrumDisplay::setColor(ZelColor color)
{
    const QSignalBlocker blocker(this);
    color_ = std::move(color);
    if (isHidden())
        return;
    spectrum_->setColor(color_);
    hueSlider_->setValue(qRound(color_.toHSV()[0]));
}

void ZelRGBSpectrumDisplay::hueChanged(int hue)
{
    const auto hsv = color_.toHSV();
    color_ = ZelColor(ZelColor::Space::HSV, float(hue), hsv[1], hsv[2]);
    spectrum_->setColor(color_);
    spectrum_->setHue(float(hue));
    Q_EMIT colorChanged(color_);
}

void ZelRGBSpectrumDisplay::colorChanged(float s, float v)
{
    color_ = ZelColor(ZelColor::Space::HSV, float(hueSlider_->value()), s, v);
    spectrum_->setColor(color_);
    Q_EMIT colorChanged(color_);
}

void ZelRGBSpectrumDisplay::showEvent(QShowEvent *event)
{
    ZelSpectrumDisplay::showEvent(event);
    setColor(color_);
}
