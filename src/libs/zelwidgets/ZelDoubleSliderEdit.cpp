#include "ZelDoubleSliderEdit.h"

#include "ZelDoubleEdit.h"
#include "ZelDoubleRow.h"
#include "ZelDoubleSlider.h"
#include "ZelSliderRow.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>

namespace {

constexpr int partSpacing = 5;
constexpr int closeSpacing = 2;

} // namespace

class ZelDoubleSliderEditPrivate : public ZelDoubleRow
{
public:
    explicit ZelDoubleSliderEditPrivate(ZelDoubleSliderEdit *row)
        : ZelDoubleRow(row)
        , q(row)
    {}

    bool isHeld() const
    {
        return isHorizontal ? QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)
                            : slider->isSliderDown();
    }
    void layOutAsLine(QBoxLayout *layout);
    void layOutAsColumn(QBoxLayout *layout);

    ZelDoubleSliderEdit *q;
    QWidget *trailingWidget = nullptr;
    QWidget *leadingWidget = nullptr;
    bool isHorizontal = false;

protected:
    void tellUpdated(bool wasEdit) override { Q_EMIT q->valueUpdated(wasEdit); }
    void tellBeforeAdjust() override { Q_EMIT q->beforeAdjustRange(); }
    void adjust() override { q->adjustSliderRange(); }
};

ZelDoubleSliderEdit::ZelDoubleSliderEdit(const QString &text, double sliderMinimum,
                                         double sliderMaximum, float *value, float limitMinimum,
                                         float limitMaximum, QWidget *trailingWidget,
                                         QWidget *leadingWidget, bool horizontal)
    : ZelDoubleSliderEdit(new QLabel(text), sliderMinimum, sliderMaximum, value, limitMinimum,
                          limitMaximum, trailingWidget, leadingWidget, horizontal)
{}

ZelDoubleSliderEdit::ZelDoubleSliderEdit(QWidget *label, double sliderMinimum, double sliderMaximum,
                                         float *value, float limitMinimum, float limitMaximum,
                                         QWidget *trailingWidget, QWidget *leadingWidget,
                                         bool horizontal)
    : d_(std::make_unique<ZelDoubleSliderEditPrivate>(this))
{
    d_->label = label;
    d_->limitMinimum = limitMinimum;
    d_->limitMaximum = limitMaximum;
    d_->trailingWidget = trailingWidget;
    d_->leadingWidget = leadingWidget;
    d_->isHorizontal = horizontal;
    create(sliderMinimum, sliderMaximum, value);
}

ZelDoubleSliderEdit::~ZelDoubleSliderEdit()
{
    d_->release();
}

void ZelDoubleSliderEdit::create(double sliderMinimum, double sliderMaximum, float *value)
{
    d_->createParts({sliderMinimum, sliderMaximum}, value);
    auto *layout =
        new QBoxLayout(d_->isHorizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    makeLayout();
    connectParts();
}

void ZelDoubleSliderEdit::makeLayout()
{
    auto *layout = static_cast<QBoxLayout *>(this->layout());
    while (const QLayoutItem *item = layout->takeAt(0))
        delete item;
    if (d_->isHorizontal)
        d_->layOutAsLine(layout);
    else
        d_->layOutAsColumn(layout);
}

void ZelDoubleSliderEditPrivate::layOutAsLine(QBoxLayout *layout)
{
    if (label)
        layout->addWidget(label);
    layout->addSpacing(partSpacing);
    layout->addWidget(slider);
    layout->addSpacing(closeSpacing);
    if (leadingWidget) {
        layout->addWidget(leadingWidget);
        layout->addSpacing(partSpacing);
    }
    layout->addWidget(edit);
    layout->addSpacing(closeSpacing);
    if (trailingWidget)
        layout->addWidget(trailingWidget);
}

void ZelDoubleSliderEditPrivate::layOutAsColumn(QBoxLayout *layout)
{
    QHBoxLayout *line = ZelSliderRow::addLine(layout);
    const bool hasExtra = leadingWidget || trailingWidget;
    if (label)
        line->addWidget(label, 0, Qt::AlignLeft);
    if (hasExtra)
        line->addStretch();
    else
        line->setSpacing(partSpacing);
    if (leadingWidget) {
        line->addWidget(leadingWidget, 0, Qt::AlignRight);
        line->addSpacing(partSpacing);
    }
    line->addWidget(edit, 0, Qt::AlignRight);
    if (trailingWidget) {
        line->addSpacing(closeSpacing);
        line->addWidget(trailingWidget, 0, Qt::AlignRight);
    }
    layout->addWidget(slider, 1);
}

void ZelDoubleSliderEdit::connectParts()
{
    ZelDoubleSlider *slider = d_->slider;
    ZelDoubleEdit *edit = d_->edit;
    using Row = ZelDoubleSliderEdit;
    connect(slider, &ZelDoubleSlider::signalFocusOut, this, &Row::adjustSliderRangeDelayed);
    connect(edit, &ZelDoubleEdit::signalFocusOut, this, &Row::adjustSliderRange);
    connect(slider, &ZelDoubleSlider::valueUpdated, this, &Row::sliderUpdated);
    connect(slider, &QAbstractSlider::sliderReleased, this, &Row::sliderReleased);
    connect(slider, &QAbstractSlider::sliderReleased, this, &Row::adjustSliderRange);
    connect(slider, &ZelDoubleSlider::scrolledToMinOrMax, this, &Row::adjustSliderRangeDelayed);
    connect(slider, &QAbstractSlider::sliderPressed, this, &Row::sliderPressed);
    connect(edit, &ZelDoubleEdit::valueUpdated, this, &Row::editUpdated);
}

float ZelDoubleSliderEdit::value() const
{
    return d_->edit->getValue();
}

double ZelDoubleSliderEdit::sliderMinimum() const
{
    return d_->slider->minVal();
}

double ZelDoubleSliderEdit::sliderMaximum() const
{
    return d_->slider->maxVal();
}

bool ZelDoubleSliderEdit::isSliderDown() const
{
    return d_->slider->isSliderDown();
}

void ZelDoubleSliderEdit::setTracking(bool enable)
{
    d_->slider->setTracking(enable);
}

void ZelDoubleSliderEdit::setSuffix(const QString &suffix)
{
    d_->edit->setSuffix(suffix);
}

void ZelDoubleSliderEdit::setDecimals(int decimals)
{
    d_->edit->setDecimals(decimals);
}

void ZelDoubleSliderEdit::setDecimalsIsAbsolute(bool absolute)
{
    d_->edit->setDecimalsIsAbsolute(absolute);
    updateValue();
}

void ZelDoubleSliderEdit::setQuantity(Quantity quantity)
{
    d_->edit->setQuantity(quantity);
}

void ZelDoubleSliderEdit::setUnit(const ZelUnitManager *manager)
{
    d_->edit->setUnit(manager);
}

void ZelDoubleSliderEdit::setText(const QString &text)
{
    d_->setText(text);
}

void ZelDoubleSliderEdit::setSliderEditEnabled(bool enabled)
{
    d_->setEnabled(enabled);
}

void ZelDoubleSliderEdit::setAutoScaleRange(bool autoScale, bool growRange)
{
    d_->setAutoScale(autoScale, growRange);
}

void ZelDoubleSliderEdit::setLimits(float minimum, float maximum)
{
    d_->setLimits(minimum, maximum);
}

void ZelDoubleSliderEdit::setRange(double minimum, double maximum)
{
    d_->setRange({minimum, maximum});
}

void ZelDoubleSliderEdit::setRange(const ZelDoubleSliderEdit &other)
{
    d_->setRange(other.d_->range());
}

void ZelDoubleSliderEdit::syncRange(ZelDoubleSliderEdit &other)
{
    d_->unite(*other.d_);
}

bool ZelDoubleSliderEdit::computeAdjustedRange(double value, double &minimum, double &maximum) const
{
    ZelRangeAdjustment::Range range{minimum, maximum};
    const bool differs = d_->computeRange(value, range);
    minimum = range.minimum;
    maximum = range.maximum;
    return differs;
}

void ZelDoubleSliderEdit::updateValue(float val)
{
    d_->updateValue(val);
}

void ZelDoubleSliderEdit::updateValue()
{
    d_->updateValue();
}

void ZelDoubleSliderEdit::resetValue()
{
    d_->resetValue();
}

void ZelDoubleSliderEdit::adjustSliderRange()
{
    d_->adjustRange(d_->isHeld());
}

void ZelDoubleSliderEdit::adjustSliderRangeDelayed()
{
    d_->adjustRangeDelayed();
}

bool ZelDoubleSliderEdit::eventFilter(QObject *watched, QEvent *event)
{
    d_->watch(watched, event);
    return QWidget::eventFilter(watched, event);
}

void ZelDoubleSliderEdit::contextMenuEvent(QContextMenuEvent *event)
{
    d_->showMenu(event);
}

void ZelDoubleSliderEdit::editUpdated()
{
    d_->editUpdated();
}

void ZelDoubleSliderEdit::sliderUpdated()
{
    d_->sliderUpdated();
}
