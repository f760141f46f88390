#include "color/ZelColorInput.h"

#include "color/ZelColorSliderEdit.h"

#include <ZelCore/ZelGammaPolicy>

#include <QVBoxLayout>

#include <cmath>

namespace {

using Mode = ZelColorSlider::RGBMode;
using Space = ZelColor::Space;

bool isSameRgb(const ZelColor &one, const ZelColor &other)
{
    constexpr float resolution = 1e-5f;
    const std::array<float, 3> a = one.toRGB();
    const std::array<float, 3> b = other.toRGB();
    return std::abs(a[0] - b[0]) < resolution && std::abs(a[1] - b[1]) < resolution &&
           std::abs(a[2] - b[2]) < resolution;
}

ZelColor empty(Space space)
{
    return ZelColor(space, 0.0f, 0.0f, 0.0f);
}

} // namespace

ZelColorInput::ZelColorInput(const ZelColor &color, bool showGamma, const QList<Mode> &channels,
                             const ZelColor &templateColor, QWidget *parent)
    : QWidget(parent)
    , initialColor_(color)
    , color_(color)
    , showGamma_(showGamma)
    , template_(templateColor)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const Mode mode : channels) {
        auto *slider = new ZelColorSliderEdit(initialColor_, mode, ZelColorChannel::label(mode),
                                              showGamma_, this);
        connect(slider, &ZelColorSliderEdit::valueChanged, this, &ZelColorInput::valueChanged);
        layout->addWidget(slider);
        sliders_.append(slider);
    }
    layout->addStretch();
}

ZelColorInput::~ZelColorInput()
{
    // The window hides while it is destroyed, and a field that has the focus finishes its editing.
    for (ZelColorSliderEdit *slider : std::as_const(sliders_))
        slider->disconnect(this);
}

void ZelColorInput::setColor(ZelColor color)
{
    if (isSameRgb(color, color_))
        return;
    color_ = std::move(color);
    dirty_ = true;
    if (!isHidden())
        updateDisplay();
}

void ZelColorInput::updateDisplay()
{
    if (!dirty_)
        return;
    const ZelColor shown = showGamma_ ? ZelGammaPolicy::get()->gammaCorrect(color_) : color_;
    for (ZelColorSliderEdit *slider : std::as_const(sliders_))
        slider->setColor(shown, showGamma_);
    dirty_ = false;
}

void ZelColorInput::updateGammaDisplay(bool showGamma)
{
    showGamma_ = showGamma;
    dirty_ = true;
    updateDisplay();
}

void ZelColorInput::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateDisplay();
}

void ZelColorInput::valueChanged()
{
    ZelColor working = template_;
    for (const ZelColorSliderEdit *slider : std::as_const(sliders_))
        working = ZelColorChannel::setChannelValue(slider->getMode(), working, slider->value());
    for (ZelColorSliderEdit *slider : std::as_const(sliders_))
        slider->updatePixmap(working, showGamma_);
    color_ = showGamma_ ? ZelGammaPolicy::get()->inverseGammaCorrect(working) : working;
    Q_EMIT colorChanged(color_);
}

ZelRGBColorInput::ZelRGBColorInput(const ZelColor &color, bool showGamma, QWidget *parent)
    : ZelColorInput(color, showGamma, {Mode::Red, Mode::Green, Mode::Blue}, empty(Space::RGB),
                    parent)
{}

ZelCMYKColorInput::ZelCMYKColorInput(const ZelColor &color, bool showGamma, QWidget *parent)
    : ZelColorInput(color, showGamma, {Mode::Cyan, Mode::Magenta, Mode::Yellow, Mode::Black},
                    empty(Space::CMYK), parent)
{}

ZelHSVColorInput::ZelHSVColorInput(const ZelColor &color, bool showGamma, QWidget *parent)
    : ZelColorInput(color, showGamma, {Mode::Hue, Mode::Saturation, Mode::Value}, empty(Space::HSV),
                    parent)
{}

ZelGrayColorInput::ZelGrayColorInput(const ZelColor &color, bool showGamma, QWidget *parent)
    : ZelColorInput(color, showGamma, {Mode::Brightness}, empty(Space::RGB), parent)
{}

ZelCIELABColorInput::ZelCIELABColorInput(const ZelColor &color, bool showGamma, QWidget *parent)
    : ZelColorInput(color, showGamma, {Mode::LabL, Mode::LabA, Mode::LabB}, empty(Space::Lab),
                    parent)
{}

ZelTemperatureColorInput::ZelTemperatureColorInput(const ZelColor &color, bool showGamma,
                                                   QWidget *parent)
    : ZelColorInput(color, showGamma, {Mode::Temperature}, empty(Space::XYZ), parent)
{}
