#include "ZelIntegerSliderEdit.h"

#include "ZelIntegerEdit.h"
#include "ZelIntegerSlider.h"
#include "ZelNumberFieldMenu.h"
#include "ZelRangeAdjustment.h"
#include "ZelSliderRow.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds maximumDelay{350};
constexpr int growingFrom = 10;

} // namespace

ZelIntegerSliderEdit::ZelIntegerSliderEdit(const QString &text, int sliderMinimum,
                                           int sliderMaximum, int *value, int editMinimum,
                                           int editMaximum)
    : ZelIntegerSliderEdit(new QLabel(text), sliderMinimum, sliderMaximum, value, editMinimum,
                           editMaximum)
{}

ZelIntegerSliderEdit::ZelIntegerSliderEdit(QWidget *label, int sliderMinimum, int sliderMaximum,
                                           int *value, int editMinimum, int editMaximum)
    : value_(value)
    , label_(label)
{
    const int maximum = qMax(sliderMaximum, ZelRangeAdjustment::softMaximum(*value, editMaximum));
    ZelSliderRow::expandSideways(this);
    edit_ = new ZelIntegerEdit(this, editMinimum, editMaximum, value);
    slider_ = new ZelIntegerSlider(this, sliderMinimum, maximum, value);
    slider_->setSingleStep(1);
    ZelSliderRow::layOut(this, label, edit_, slider_);
    ZelSliderRow::describe(label, edit_, slider_);
    if (label)
        label->installEventFilter(this);
    connectParts();
}

ZelIntegerSliderEdit *ZelIntegerSliderEdit::createFixed(const QString &text, int minimum,
                                                        int maximum, int *value)
{
    return new ZelIntegerSliderEdit(text, minimum, maximum, value, minimum, maximum);
}

ZelIntegerSliderEdit *ZelIntegerSliderEdit::createFixed(QWidget *label, int minimum, int maximum,
                                                        int *value)
{
    return new ZelIntegerSliderEdit(label, minimum, maximum, value, minimum, maximum);
}

ZelIntegerSliderEdit::~ZelIntegerSliderEdit()
{
    // A part that loses the focus on its way out would still reach the row.
    delete slider_;
    delete edit_;
}

void ZelIntegerSliderEdit::connectParts()
{
    using Row = ZelIntegerSliderEdit;
    connect(slider_, &ZelIntegerSlider::valueUpdated, edit_, &ZelIntegerEdit::updateValue);
    connect(edit_, &ZelIntegerEdit::valueUpdated, slider_, &ZelIntegerSlider::updateValue);
    connect(slider_, &ZelIntegerSlider::valueUpdated, this, [this] {
        if (sliderTracking_ || !slider_->isSliderDown())
            Q_EMIT valueUpdated();
    });
    connect(slider_, &QAbstractSlider::sliderReleased, this, [this] {
        if (!sliderTracking_)
            Q_EMIT valueUpdated();
    });
    connect(slider_, &QAbstractSlider::sliderReleased, this, &Row::sliderReleased);
    connect(slider_, &QAbstractSlider::sliderReleased, this, &Row::slotUpdateSliderMax);
    connect(slider_, &ZelIntegerSlider::scrolledToMax, this, &Row::slotUpdateSliderMax);
    connect(slider_, &ZelIntegerSlider::signalFocusOut, this, &Row::slotMaxUpdateDelayed);
    connect(edit_, &ZelIntegerEdit::valueUpdated, this, &Row::valueUpdated);
    connect(edit_, &ZelIntegerEdit::valueUpdated, this, &Row::editUpdated);
    connect(edit_, &ZelIntegerEdit::signalFocusOut, this, &Row::slotMaxUpdateDelayed);
    connect(edit_, &QAbstractSpinBox::editingFinished, this, &Row::returnPressed);
}

ZelIntegerSlider *ZelIntegerSliderEdit::sliderWdg() const
{
    return slider_;
}

void ZelIntegerSliderEdit::setLabel(const QString &text)
{
    ZelSliderRow::setCaption(label_, text);
    ZelSliderRow::describe(label_, edit_, slider_);
}

void ZelIntegerSliderEdit::setRange(int minimum, int maximum)
{
    const QSignalBlocker blocker(slider_);
    slider_->setRange(minimum, maximum);
    slider_->updateValue();
}

void ZelIntegerSliderEdit::setSuffix(const QString &suffix)
{
    edit_->setSuffix(suffix);
}

void ZelIntegerSliderEdit::setSliderTracking(bool enable)
{
    sliderTracking_ = enable;
}

void ZelIntegerSliderEdit::setVisible(bool visible)
{
    const bool wasHidden = isHidden();
    QWidget::setVisible(visible);
    if (isHidden() != wasHidden)
        Q_EMIT visibleStateChanged();
}

void ZelIntegerSliderEdit::updateValue()
{
    slider_->updateValue();
    edit_->updateValue();
}

void ZelIntegerSliderEdit::resetValue()
{
    slider_->resetValue();
    edit_->resetValue();
}

void ZelIntegerSliderEdit::slotUpdateSliderMax()
{
    const int number = edit_->value();
    if (slider_->value() != slider_->maximum() || number / growingFrom == 0)
        return;
    const int maximum = ZelRangeAdjustment::softMaximum(number, edit_->maximum());
    if (maximum == slider_->maximum())
        return;
    slider_->setMaximum(maximum);
    const QSignalBlocker blocker(slider_);
    slider_->setValue(number);
}

void ZelIntegerSliderEdit::slotMaxUpdateDelayed()
{
    QTimer::singleShot(maximumDelay, this, &ZelIntegerSliderEdit::slotUpdateSliderMax);
}

bool ZelIntegerSliderEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (ZelSliderRow::isResetClick(label_, watched, event))
        resetByUser();
    return QWidget::eventFilter(watched, event);
}

void ZelIntegerSliderEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ZelNumberFieldMenu::show(ZelNumberFieldMenu::forRow(this, edit_, [this] { resetByUser(); }),
                             event);
}

void ZelIntegerSliderEdit::resetByUser()
{
    if (!edit_->isEnabled())
        return;
    const int before = *value_;
    resetValue();
    updateValue();
    if (*value_ != before)
        Q_EMIT valueUpdated();
}
