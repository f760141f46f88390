#include "ZelDoubleRow.h"

#include "ZelDoubleEdit.h"
#include "ZelDoubleSlider.h"
#include "ZelNumberFieldMenu.h"
#include "ZelSliderRow.h"

#include <QAccessible>
#include <QDebug>
#include <QSignalBlocker>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds adjustDelay{150};
constexpr int stepsPerRange = 100;

} // namespace

ZelDoubleRow::ZelDoubleRow(QWidget *row)
    : row_(row)
{
    adjustTimer_.setSingleShot(true);
    adjustTimer_.setInterval(adjustDelay);
    QObject::connect(&adjustTimer_, &QTimer::timeout, row, [this] { adjust(); });
}

ZelDoubleRow::~ZelDoubleRow() = default;

void ZelDoubleRow::createParts(const ZelRangeAdjustment::Range &range, float *value)
{
    ownValue_ = static_cast<float>(range.minimum);
    value_ = value ? value : &ownValue_;
    ZelSliderRow::expandSideways(row_);
    edit = new ZelDoubleEdit(row_, static_cast<double>(limitMinimum),
                             static_cast<double>(limitMaximum), value_);
    edit->setCompact();
    edit->setSingleStep((range.maximum - range.minimum) / stepsPerRange);
    slider = new ZelDoubleSlider(row_, range.minimum, range.maximum, value_);
    ZelSliderRow::prepareSlider(slider);
    describe();
    if (label)
        label->installEventFilter(row_);
}

void ZelDoubleRow::release()
{
    adjustTimer_.stop();
    // As a field that loses the focus by being hidden would still write its number.
    delete slider;
    delete edit;
}

void ZelDoubleRow::updateValue(float number)
{
    if (number == *value_)
        return;
    if (number < limitMinimum || number > limitMaximum)
        qDebug() << "Slider got value out of range. Check your limits.";
    if (isUpdating_)
        return;
    *value_ = number;
    updateValue();
}

void ZelDoubleRow::updateValue()
{
    if (isUpdating_)
        return;
    const QPointer<QWidget> alive(row_);
    if (autoScale_)
        adjust();
    if (!alive)
        return;
    edit->updateValue();
    const QSignalBlocker blocker(slider);
    slider->updateValue();
}

void ZelDoubleRow::resetValue()
{
    slider->resetValue();
    edit->resetValue();
}

void ZelDoubleRow::resetByUser()
{
    if (!edit->isEnabled())
        return;
    const float before = *value_;
    resetValue();
    if (before == *value_)
        return;
    QAccessibleValueChangeEvent change(edit, edit->value());
    QAccessible::updateAccessibility(&change);
    editUpdated();
}

void ZelDoubleRow::editUpdated()
{
    const QPointer<QWidget> alive(row_);
    if (autoScale_)
        adjust();
    if (!alive)
        return;
    slider->updateValue();
    tellUpdatedOnce(true);
}

void ZelDoubleRow::sliderUpdated()
{
    {
        const QSignalBlocker blocker(edit);
        edit->updateValue();
    }
    tellUpdatedOnce(false);
}

/// A listener may call updateValue(), or destroy the row.
void ZelDoubleRow::tellUpdatedOnce(bool wasEdit)
{
    const QPointer<QWidget> alive(row_);
    isUpdating_ = true;
    tellUpdated(wasEdit);
    if (alive)
        isUpdating_ = false;
}

ZelRangeAdjustment::Range ZelDoubleRow::range() const
{
    return {slider->minVal(), slider->maxVal()};
}

void ZelDoubleRow::setRange(const ZelRangeAdjustment::Range &wanted)
{
    if (wanted != range())
        slider->setRange(wanted.minimum, wanted.maximum);
}

void ZelDoubleRow::unite(ZelDoubleRow &other)
{
    const auto both = ZelRangeAdjustment::united(range(), other.range());
    setRange(both);
    other.setRange(both);
}

void ZelDoubleRow::setLimits(float minimum, float maximum)
{
    if (minimum == limitMinimum && maximum == limitMaximum)
        return;
    edit->setRange(static_cast<double>(minimum), static_cast<double>(maximum));
    limitMinimum = minimum;
    limitMaximum = maximum;
    if (autoScale_)
        adjust();
}

void ZelDoubleRow::setAutoScale(bool follows, bool grows)
{
    grows_ = grows;
    const QPointer<QWidget> alive(row_);
    if (follows && !autoScale_)
        adjust();
    if (alive)
        autoScale_ = follows;
}

bool ZelDoubleRow::computeRange(double value, ZelRangeAdjustment::Range &result) const
{
    using namespace ZelRangeAdjustment;
    const Range limits{static_cast<double>(limitMinimum), static_cast<double>(limitMaximum)};
    return ZelRangeAdjustment::adjust(value, grows_ ? Method::Grow : Method::Recentre, range(),
                                      limits, result);
}

void ZelDoubleRow::adjustRange(bool isHeld)
{
    if (isHeld)
        return;
    const QPointer<QWidget> alive(row_);
    tellBeforeAdjust();
    if (!alive || !autoScale_)
        return;
    adjustTimer_.stop();
    ZelRangeAdjustment::Range wanted;
    if (computeRange(static_cast<double>(*value_), wanted))
        slider->setRange(wanted.minimum, wanted.maximum);
}

void ZelDoubleRow::adjustRangeDelayed()
{
    if (!adjustTimer_.isActive())
        adjustTimer_.start();
}

void ZelDoubleRow::setEnabled(bool enabled)
{
    slider->setEnabled(enabled);
    edit->setEnabled(enabled);
}

void ZelDoubleRow::setText(const QString &text)
{
    ZelSliderRow::setCaption(label, text);
    describe();
}

void ZelDoubleRow::describe()
{
    ZelSliderRow::describe(label, edit, slider);
}

void ZelDoubleRow::showMenu(QContextMenuEvent *event)
{
    ZelNumberFieldMenu::show(ZelNumberFieldMenu::forRow(row_, edit, [this] { resetByUser(); }),
                             event);
}

void ZelDoubleRow::watch(const QObject *watched, const QEvent *event)
{
    if (ZelSliderRow::isResetClick(label, watched, event))
        resetByUser();
}
