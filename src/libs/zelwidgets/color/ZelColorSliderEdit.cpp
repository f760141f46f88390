#include "color/ZelColorSliderEdit.h"

#include "ZelAccessibleValue.h"
#include "color/ZelColorLineEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <cmath>

namespace {

constexpr int fieldWidth = 60;
constexpr int margin = 2;
constexpr double sliderHeight = 16;
constexpr double rowOverlap = -5;

/// Rounded, and within what an int and the slider can take.
int positionOf(double value, const QSlider *slider)
{
    if (std::isnan(value))
        value = 0;
    return qRound(qBound(double(slider->minimum()), value, double(slider->maximum())));
}

} // namespace

ZelColorSliderEdit::ZelColorSliderEdit(const ZelColor &color, ZelColorSlider::RGBMode mode,
                                       const QString &label, bool showGamma, QWidget *parent)
    : QWidget(parent)
    , slider_(new ZelColorSlider(mode, this))
    , edit_(new ZelColorLineEdit(this))
    , mode_(mode)
{
    createFields(label);
    setColor(color, showGamma);
    connect(slider_, &QSlider::valueChanged, this, &ZelColorSliderEdit::sliderUpdated);
    connect(edit_, &QDoubleSpinBox::valueChanged, this, &ZelColorSliderEdit::editValueChanged);
}

ZelColorSliderEdit::~ZelColorSliderEdit()
{
    // A field that has the focus finishes its editing while it is destroyed.
    edit_->disconnect(this);
}

void ZelColorSliderEdit::createFields(const QString &label)
{
    const ZelColorChannel::Field field = ZelColorChannel::field(mode_);
    edit_->setFixedWidth(fieldWidth);
    edit_->setRange(field.minimum, field.maximum);
    edit_->setDecimals(field.decimals);
    edit_->setSuffix(field.suffix);
    edit_->setAccessibleName(label);
    slider_->setAccessibleName(label);
    ZelAccessibleValue::describeBy(slider_, edit_);
    const double ratio = devicePixelRatioF();
    slider_->setFixedHeight(int(sliderHeight / ratio));

    auto *name = new QLabel(label, this);
    name->setBuddy(edit_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(name);
    row->addStretch();
    row->addWidget(edit_);
    layout->addLayout(row);
    layout->addSpacing(int(rowOverlap / ratio));
    auto *sliderRow = new QHBoxLayout;
    sliderRow->addWidget(slider_);
    sliderRow->addSpacing(margin);
    layout->addLayout(sliderRow);
    setTabOrder(edit_, slider_);
}

float ZelColorSliderEdit::value() const
{
    return float(edit_->value());
}

void ZelColorSliderEdit::setValue(float value)
{
    slider_->setSliderPosition(positionOf(double(value), slider_));
}

void ZelColorSliderEdit::setColor(const ZelColor &color, bool showGamma)
{
    updatePixmap(color, showGamma);
    const float value = ZelColorChannel::channelValue(mode_, color);
    const QSignalBlocker blocker(slider_);
    slider_->setSliderPosition(positionOf(double(value), slider_));
    setEditValue(value);
}

void ZelColorSliderEdit::updatePixmap(const ZelColor &color, bool showGamma)
{
    slider_->updatePixmap(color, showGamma);
}

void ZelColorSliderEdit::setEditValue(float value)
{
    const QSignalBlocker blocker(edit_);
    const double number = std::isnan(value) ? 0.0 : double(value);
    edit_->setValue(qBound(edit_->minimum(), number, edit_->maximum()));
}

void ZelColorSliderEdit::sliderUpdated(int value)
{
    setEditValue(float(value));
    Q_EMIT valueChanged(value);
}

void ZelColorSliderEdit::editValueChanged(double val)
{
    const int rounded = qRound(val);
    {
        const QSignalBlocker blocker(slider_);
        slider_->setSliderPosition(positionOf(val, slider_));
    }
    Q_EMIT valueChanged(rounded);
}
