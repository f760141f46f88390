#include "ZelIntSliderWithIcons.h"

#include "ZelIntegerSlider.h"
#include "ZelToolButton.h"

#include <ZelWidgets/ZelStyleIcon>

#include <QHBoxLayout>

#include <cmath>

namespace {

constexpr int partSpacing = 4;
constexpr int iconPercentage = 75;

void prepare(ZelToolButton *button, const QString &icon, const QString &tip)
{
    button->setIcon(ZelStyleIcon(icon));
    button->setIconScalePercentage(iconPercentage);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
}

} // namespace

ZelIntSliderWithIcons::ZelIntSliderWithIcons(QWidget *parent, int minimum, int maximum, int *value)
    : QWidget(parent)
    , slider_(new ZelIntegerSlider(this, minimum, maximum, value))
    , zoomInButton_(new ZelToolButton(ZelToolButton::Flat, this))
    , zoomOutButton_(new ZelToolButton(ZelToolButton::Flat, this))
{
    slider_->setAccessibleName(tr("Zoom"));
    prepare(zoomOutButton_, QStringLiteral(":ui/icons/zoom_out"), tr("Zoom out"));
    prepare(zoomInButton_, QStringLiteral(":ui/icons/zoom"), tr("Zoom in"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(zoomOutButton_);
    layout->addSpacing(partSpacing);
    layout->addWidget(slider_);
    layout->addSpacing(partSpacing);
    layout->addWidget(zoomInButton_);

    using Bar = ZelIntSliderWithIcons;
    connect(zoomOutButton_, &QAbstractButton::clicked, slider_,
            &ZelIntegerSlider::singleStepDecrease);
    connect(zoomInButton_, &QAbstractButton::clicked, slider_,
            &ZelIntegerSlider::singleStepIncrease);
    connect(slider_, &QAbstractSlider::valueChanged, this, &Bar::valueChanged);
    connect(slider_, &QAbstractSlider::rangeChanged, this, &Bar::rangeChanged);
    connect(slider_, &ZelIntegerSlider::valueUpdated, this, &Bar::valueUpdated);
    connect(slider_, &ZelIntegerSlider::scrolledToMax, this, &Bar::scrolledToMax);
    connect(slider_, &ZelIntegerSlider::signalFocusOut, this, &Bar::signalFocusOut);
}

ZelIntegerSlider *ZelIntSliderWithIcons::slider() const
{
    return slider_;
}

ZelToolButton *ZelIntSliderWithIcons::zoomInButton() const
{
    return zoomInButton_;
}

ZelToolButton *ZelIntSliderWithIcons::zoomOutButton() const
{
    return zoomOutButton_;
}

int ZelIntSliderWithIcons::minimum() const
{
    return slider_->minimum();
}

int ZelIntSliderWithIcons::maximum() const
{
    return slider_->maximum();
}

int ZelIntSliderWithIcons::value() const
{
    return slider_->value();
}

float ZelIntSliderWithIcons::valuePercentage() const
{
    const double span = static_cast<double>(maximum()) - minimum();
    if (span <= 0)
        return 0;
    return static_cast<float>((static_cast<double>(value()) - minimum()) / span);
}

void ZelIntSliderWithIcons::setValue(int value)
{
    slider_->setValue(value);
}

void ZelIntSliderWithIcons::setValuePercentage(float part)
{
    if (std::isnan(part))
        return;
    const double span = static_cast<double>(maximum()) - minimum();
    const double position = minimum() + span * qBound(0.0, static_cast<double>(part), 1.0);
    setValue(static_cast<int>(position));
}

void ZelIntSliderWithIcons::setRange(int minimum, int maximum)
{
    slider_->setRange(minimum, maximum);
}

void ZelIntSliderWithIcons::setPageStep(int step)
{
    slider_->setPageStep(step);
}

void ZelIntSliderWithIcons::setSingleStep(int step)
{
    slider_->setSingleStep(step);
}

void ZelIntSliderWithIcons::updateValue()
{
    slider_->updateValue();
}
