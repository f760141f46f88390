#include "ZelDoubleSlider.h"

#include "ZelAccessibleValue.h"
#include "ZelControlWheel.h"
#include "ZelSliderGroove.h"

#include <QDebug>
#include <QScopedValueRollback>

#include <cmath>

namespace {

constexpr int largeWheelStep = 2;
constexpr int wheelTurns = 5;

class AccessibleSlider : public ZelAccessibleValue
{
public:
    explicit AccessibleSlider(QWidget *slider)
        : ZelAccessibleValue(slider, QAccessible::Slider)
    {}
    QVariant currentValue() const override
    {
        return ZelSliderMath::value(slider()->value(), slider()->minVal(), slider()->maxVal());
    }
    void setCurrentValue(const QVariant &value) override
    {
        slider()->setValue(
            ZelSliderMath::position(value.toFloat(), slider()->minVal(), slider()->maxVal()));
    }
    QVariant maximumValue() const override { return slider()->maxVal(); }
    QVariant minimumValue() const override { return slider()->minVal(); }
    QVariant minimumStepSize() const override
    {
        return (slider()->maxVal() - slider()->minVal()) / ZelSliderMath::steps;
    }

private:
    ZelDoubleSlider *slider() const { return static_cast<ZelDoubleSlider *>(object()); }
};

} // namespace

ZelDoubleSlider::ZelDoubleSlider(QWidget *parent, double minimum, double maximum, float *value)
    : QSlider(Qt::Horizontal, parent)
    , value_(value)
    , initialValue_(*value)
    , minimum_(minimum)
    , maximum_(maximum)
{
    ZelAccessibleValue::serve<AccessibleSlider, ZelDoubleSlider>();
    setObjectName(QStringLiteral("ZelDoubleSlider"));
    if (!std::isfinite(*value_)) {
        qDebug() << "Slider initial value was not finite - setting to zero";
        *value_ = 0;
    }
    QAbstractSlider::setRange(0, ZelSliderMath::steps);
    updateValue();
    connect(this, &QAbstractSlider::valueChanged, this, &ZelDoubleSlider::myValueChanged);
    fillsFromCentre_ = minimum_ < 0;
}

ZelDoubleSlider::~ZelDoubleSlider() = default;

void ZelDoubleSlider::setFloatValue(float value)
{
    *value_ = ZelSliderMath::bounded(value, minimum_, maximum_);
    updateValue();
}

void ZelDoubleSlider::setRange(double minimum, double maximum)
{
    minimum_ = minimum;
    maximum_ = maximum;
    updateValue();
    const bool fillsFromCentre = minimum_ < 0;
    if (fillsFromCentre != fillsFromCentre_)
        update();
    fillsFromCentre_ = fillsFromCentre;
}

void ZelDoubleSlider::updateValue()
{
    const QScopedValueRollback<bool> showing(isShowing_, true);
    setValue(ZelSliderMath::position(*value_, minimum_, maximum_));
}

void ZelDoubleSlider::resetValue()
{
    *value_ = initialValue_;
}

void ZelDoubleSlider::myValueChanged(int position)
{
    if (isShowing_)
        return;
    *value_ = ZelSliderMath::value(position, minimum_, maximum_);
    ZelSliderGroove::announce(this, static_cast<double>(*value_));
    Q_EMIT valueUpdated();
}

void ZelDoubleSlider::mousePressEvent(QMouseEvent *event)
{
    if (!ZelSliderGroove::pressesGroove(this, event, [&] { QSlider::mousePressEvent(event); }))
        return;
    setRepeatAction(SliderNoAction);
    *value_ = ZelSliderMath::valueAt(ZelSliderGroove::partAt(this, event), minimum_, maximum_);
    updateValue();
    ZelSliderGroove::announce(this, static_cast<double>(*value_));
    Q_EMIT valueUpdated();
}

void ZelDoubleSlider::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    turn(event);
    event->accept();
    if (value() == maximum() || value() == minimum())
        Q_EMIT scrolledToMinOrMax();
}

void ZelDoubleSlider::turn(QWheelEvent *event)
{
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        setValue(value() + (event->angleDelta().y() > 0 ? largeWheelStep : -largeWheelStep));
        return;
    }
    for (int i = 0; i < wheelTurns; ++i) {
        ZelControlWheel::forwardAs(event, Qt::NoModifier, [this](QWheelEvent *plain) {
            QAbstractSlider::wheelEvent(plain);
        });
    }
}

void ZelDoubleSlider::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    Q_EMIT signalFocusOut();
}

void ZelDoubleSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    const float part = static_cast<float>(value()) / static_cast<float>(maximum());
    const auto lines = fillsFromCentre_ ? ZelSliderMath::grooveFromCentre(part, width(), height())
                                        : ZelSliderMath::groove(part, width(), height());
    ZelSliderGroove::paint(this,
                           {grooveColorBackground_, grooveColorFill_,
                            grooveColorBackgroundDisabled_, grooveColorFillDisabled_},
                           lines, height() / 2);
}
