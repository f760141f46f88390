#include "ZelTimeSliderEdit.h"

#include "ZelDoubleSlider.h"
#include "ZelNumberFieldMenu.h"
#include "ZelSliderRow.h"
#include "ZelTimeEdit.h"

#include <QBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <cmath>

namespace {

constexpr int editWidth = 80;
constexpr int partSpacing = 5;
constexpr int closeSpacing = 2;
constexpr float lastSecond = 86399.0F;
constexpr double secondsPerMillisecond = 0.001;
constexpr double millisecondsPerSecond = 1000.0;
constexpr float secondsPerHour = 3600.0F;
constexpr double lastMillisecond = 86399999.0;

QTime timeOfDay(double seconds)
{
    const double milliseconds = std::isnan(seconds) ? 0.0 : seconds * millisecondsPerSecond;
    return QTime::fromMSecsSinceStartOfDay(qRound(qBound(0.0, milliseconds, lastMillisecond)));
}

} // namespace

ZelTimeSliderEdit::ZelTimeSliderEdit(const QString &text, QWidget *extraWidget)
    : ZelTimeSliderEdit(new QLabel(text), extraWidget)
{}

ZelTimeSliderEdit::ZelTimeSliderEdit(QWidget *label, QWidget *extraWidget)
    : label_(label)
    , extraWidget_(extraWidget)
{
    create();
}

ZelTimeSliderEdit::~ZelTimeSliderEdit()
{
    // The slider is bound to a number in here.
    delete slider_;
    delete edit_;
}

void ZelTimeSliderEdit::create()
{
    setObjectName(QStringLiteral("ZelTimeSliderEdit"));
    ZelSliderRow::expandSideways(this);
    edit_ = new ZelTimeEdit(this);
    edit_->setFixedWidth(editWidth);
    edit_->setAttribute(Qt::WA_MacShowFocusRect, false);
    edit_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    edit_->setKeyboardTracking(false);
    edit_->setTimeRange(timeOfDay(0), timeOfDay(static_cast<double>(lastSecond)));
    slider_ = new ZelDoubleSlider(this, 0, static_cast<double>(lastSecond), &seconds_);
    ZelSliderRow::prepareSlider(slider_);
    makeLayout();
    ZelSliderRow::describe(label_, edit_, slider_);
    if (label_)
        label_->installEventFilter(this);
    connect(slider_, &ZelDoubleSlider::valueUpdated, this, &ZelTimeSliderEdit::sliderUpdated);
    connect(slider_, &QAbstractSlider::sliderReleased, this, &ZelTimeSliderEdit::sliderReleased);
    connect(edit_, &QDateTimeEdit::timeChanged, this, &ZelTimeSliderEdit::editUpdated);
}

void ZelTimeSliderEdit::makeLayout()
{
    QBoxLayout *column = ZelSliderRow::installColumn(this);
    QHBoxLayout *line = ZelSliderRow::addLine(column);
    if (label_)
        line->addWidget(label_, 0, Qt::AlignLeft);
    if (extraWidget_)
        line->addStretch();
    else
        line->setSpacing(partSpacing);
    line->addWidget(edit_, 0, Qt::AlignRight);
    if (extraWidget_) {
        line->addSpacing(closeSpacing);
        line->addWidget(extraWidget_, 0, Qt::AlignRight);
    }
    column->addSpacing(-closeSpacing);
    column->addWidget(slider_, 1);
}

ZelTime ZelTimeSliderEdit::time() const
{
    return {static_cast<double>(seconds_)};
}

float ZelTimeSliderEdit::hours() const
{
    return seconds_ / secondsPerHour;
}

void ZelTimeSliderEdit::setTime(const ZelTime &time)
{
    seconds_ = static_cast<float>(time.seconds);
    updateValue();
}

void ZelTimeSliderEdit::setTime(const QTime &time)
{
    seconds_ = static_cast<float>(time.msec() * secondsPerMillisecond);
    updateValue();
}

void ZelTimeSliderEdit::setHour(float hours)
{
    seconds_ = hours * secondsPerHour;
    updateValue();
}

void ZelTimeSliderEdit::setRange(const ZelTime &minimum, const ZelTime &maximum)
{
    slider_->setRange(minimum.seconds, maximum.seconds);
    const QSignalBlocker blocker(edit_);
    edit_->setTimeRange(timeOfDay(minimum.seconds), timeOfDay(maximum.seconds));
}

void ZelTimeSliderEdit::setRangeHours(float minimum, float maximum)
{
    setRange(ZelTime{static_cast<double>(minimum * secondsPerHour)},
             ZelTime{static_cast<double>(maximum * secondsPerHour)});
}

void ZelTimeSliderEdit::setDisplayFormat(const QString &format)
{
    edit_->setDisplayFormat(format);
}

void ZelTimeSliderEdit::setTracking(bool enable)
{
    slider_->setTracking(enable);
}

void ZelTimeSliderEdit::updateValue(float val)
{
    if (updating_)
        return;
    slider_->setFloatValue(val);
    updateValue();
}

void ZelTimeSliderEdit::updateValue()
{
    if (updating_)
        return;
    showInEdit();
    slider_->updateValue();
}

void ZelTimeSliderEdit::resetValue()
{
    slider_->resetValue();
    showInEdit();
}

void ZelTimeSliderEdit::showInEdit()
{
    const QSignalBlocker blocker(edit_);
    edit_->setTime(timeOfDay(static_cast<double>(seconds_)));
}

void ZelTimeSliderEdit::editUpdated()
{
    seconds_ = static_cast<float>(edit_->time().msecsSinceStartOfDay() * secondsPerMillisecond);
    slider_->updateValue();
    tellUpdated();
}

void ZelTimeSliderEdit::sliderUpdated()
{
    showInEdit();
    tellUpdated();
}

void ZelTimeSliderEdit::tellUpdated()
{
    const QPointer<QObject> alive(this);
    updating_ = true;
    Q_EMIT valueUpdated();
    if (alive)
        updating_ = false;
}

bool ZelTimeSliderEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (ZelSliderRow::isResetClick(label_, watched, event))
        resetByUser();
    return QWidget::eventFilter(watched, event);
}

void ZelTimeSliderEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ZelNumberFieldMenu::show(ZelNumberFieldMenu::forRow(this, edit_, [this] { resetByUser(); }),
                             event);
}

void ZelTimeSliderEdit::resetByUser()
{
    if (!edit_->isEnabled())
        return;
    const float before = seconds_;
    resetValue();
    slider_->updateValue();
    if (seconds_ != before)
        tellUpdated();
}
