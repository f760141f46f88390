#include "ZelIntegerSlider.h"

#include "ZelControlWheel.h"
#include "ZelSliderAccessible.h"
#include "ZelSliderGroove.h"

#include <ZelWidgets/ZelFontMetrics>

#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int scrollToMaxDelay = 500;
constexpr int hintInM = 6;

} // namespace

ZelIntegerSlider::ZelIntegerSlider(QWidget *parent, int minimum, int maximum, int *value)
    : QSlider(Qt::Horizontal, parent)
    , value_(value)
    , initialValue_(*value)
{
    ZelAccessibleValue::serve<ZelSliderAccessible, ZelIntegerSlider>();
    setObjectName(QStringLiteral("ZelIntegerSlider"));
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    setRange(minimum, maximum);
    updateValue();
    connect(this, &QAbstractSlider::valueChanged, this, &ZelIntegerSlider::myValueChanged);
}

ZelIntegerSlider::~ZelIntegerSlider() = default;

QSize ZelIntegerSlider::sizeHint() const
{
    const ZelFontMetrics metrics(this);
    return {hintInM * metrics.widthM(), metrics.height()};
}

void ZelIntegerSlider::updateValue()
{
    const QScopedValueRollback<bool> showing(isShowing_, true);
    setValue(*value_);
}

void ZelIntegerSlider::resetValue()
{
    *value_ = initialValue_;
}

void ZelIntegerSlider::singleStepDecrease()
{
    triggerAction(SliderSingleStepSub);
}

void ZelIntegerSlider::singleStepIncrease()
{
    triggerAction(SliderSingleStepAdd);
}

void ZelIntegerSlider::myValueChanged(int position)
{
    if (isShowing_)
        return;
    *value_ = position;
    Q_EMIT valueUpdated();
}

void ZelIntegerSlider::mousePressEvent(QMouseEvent *event)
{
    if (!ZelSliderGroove::pressesGroove(this, event, [&] { QSlider::mousePressEvent(event); }))
        return;
    setRepeatAction(SliderNoAction);
    setValue(ZelSliderMath::positionAt(ZelSliderGroove::partAt(this, event), minimum(), maximum()));
    Q_EMIT valueUpdated();
}

void ZelIntegerSlider::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() != Qt::ControlModifier) {
        event->ignore();
        return;
    }
    QAbstractSlider::wheelEvent(event);
    event->accept();
    if (value() != maximum() || scrollToMaxPending_)
        return;
    scrollToMaxPending_ = true;
    QTimer::singleShot(scrollToMaxDelay, this, &ZelIntegerSlider::slotDelayedSliderScrollToMax);
}

void ZelIntegerSlider::slotDelayedSliderScrollToMax()
{
    scrollToMaxPending_ = false;
    if (value() == maximum())
        Q_EMIT scrolledToMax();
}

void ZelIntegerSlider::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    Q_EMIT signalFocusOut();
}

void ZelIntegerSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    constexpr int handleMargin = 2;
    const int handle = sizeHint().height() - handleMargin;
    ZelSliderGroove::paint(this,
                           {grooveColorBackground_, grooveColorFill_,
                            grooveColorBackgroundDisabled_, grooveColorFillDisabled_},
                           ZelSliderMath::groove(part(), width(), handle), height() / 2);
}

float ZelIntegerSlider::part() const
{
    const double span = static_cast<double>(maximum()) - minimum();
    return span > 0 ? static_cast<float>((static_cast<double>(value()) - minimum()) / span) : 0;
}
