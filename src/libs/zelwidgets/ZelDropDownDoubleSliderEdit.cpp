#include "ZelDropDownDoubleSliderEdit.h"

#include "ZelContentWidget.h"
#include "ZelDoubleEdit.h"
#include "ZelDoubleRow.h"
#include "ZelDoubleSlider.h"
#include "ZelFlipLabel.h"
#include "ZelSliderRow.h"

#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QDebug>
#include <QGuiApplication>
#include <QLabel>
#include <QStyle>

namespace {

constexpr int partSpacing = 5;

} // namespace

class ZelDropDownDoubleSliderEditPrivate : public ZelDoubleRow
{
public:
    explicit ZelDropDownDoubleSliderEditPrivate(ZelDropDownDoubleSliderEdit *row)
        : ZelDoubleRow(row)
        , q(row)
    {}
    void createPanel();

    ZelDropDownDoubleSliderEdit *q;
    ZelFlipLabel *flipLabel = nullptr;
    ZelContentWidget2 *panel = nullptr;
    QVBoxLayout *panelLayout = nullptr;
    bool isOpen = false;

protected:
    void tellUpdated(bool wasEdit) override { Q_EMIT q->valueUpdated(wasEdit); }
    void tellBeforeAdjust() override { Q_EMIT q->beforeAdjustRange(); }
    void adjust() override { q->adjustSliderRange(); }
};

void ZelDropDownDoubleSliderEditPrivate::createPanel()
{
    panel = new ZelContentWidget2(q);
    panel->setContentsMargins(0, 0, 0, 0);
    panel->hide();
    panelLayout = new QVBoxLayout(panel);
    const QStyle *style = q->style();
    panelLayout->setContentsMargins(style->pixelMetric(QStyle::PM_LayoutLeftMargin), 0, 0,
                                    style->pixelMetric(QStyle::PM_LayoutBottomMargin));
    QObject::connect(panel, &ZelContentWidget2::visibilityChanged, q,
                     [this] { q->updateGeometry(); });
    QObject::connect(flipLabel, &ZelFlipLabel::clicked, q,
                     &ZelDropDownDoubleSliderEdit::dropDownToggle);
}

ZelDropDownDoubleSliderEdit::ZelDropDownDoubleSliderEdit(const QString &text, double sliderMinimum,
                                                         double sliderMaximum, float *value,
                                                         float limitMinimum, float limitMaximum,
                                                         QWidget *extraWidget, bool dropDown)
    : d_(std::make_unique<ZelDropDownDoubleSliderEditPrivate>(this))
{
    if (dropDown)
        d_->flipLabel = new ZelFlipLabel(text, false);
    d_->label = dropDown ? static_cast<QWidget *>(d_->flipLabel) : new QLabel(text);
    d_->limitMinimum = limitMinimum;
    d_->limitMaximum = limitMaximum;
    d_->createParts({sliderMinimum, sliderMaximum}, value);
    if (dropDown)
        d_->createPanel();
    makeLayout(extraWidget);
    connectParts();
}

ZelDropDownDoubleSliderEdit::~ZelDropDownDoubleSliderEdit()
{
    delete d_->panel;
    d_->release();
}

void ZelDropDownDoubleSliderEdit::makeLayout(QWidget *extraWidget)
{
    QBoxLayout *column = ZelSliderRow::installColumn(this);
    QHBoxLayout *line = ZelSliderRow::addLine(column);
    line->addWidget(d_->label, 0, Qt::AlignLeft);
    if (extraWidget) {
        line->addSpacing(partSpacing);
        line->addWidget(extraWidget, 0, Qt::AlignLeft);
    }
    line->addStretch();
    line->addWidget(d_->edit, 0, Qt::AlignRight);
    column->addWidget(d_->slider, 1);
    if (d_->panel)
        column->addWidget(d_->panel);
}

void ZelDropDownDoubleSliderEdit::connectParts()
{
    ZelDoubleSlider *slider = d_->slider;
    ZelDoubleEdit *edit = d_->edit;
    using Row = ZelDropDownDoubleSliderEdit;
    const auto adjustNow = qOverload<>(&Row::adjustSliderRange);
    connect(slider, &ZelDoubleSlider::signalFocusOut, this, &Row::adjustSliderRangeDelayed);
    connect(edit, &ZelDoubleEdit::signalFocusOut, this, adjustNow);
    connect(slider, &ZelDoubleSlider::valueUpdated, this, &Row::sliderUpdated);
    connect(slider, &QAbstractSlider::sliderReleased, this, &Row::sliderReleased);
    connect(slider, &QAbstractSlider::sliderReleased, this, adjustNow);
    connect(slider, &ZelDoubleSlider::scrolledToMinOrMax, this, &Row::adjustSliderRangeDelayed);
    connect(slider, &QAbstractSlider::sliderPressed, this, &Row::sliderPressed);
    connect(edit, &ZelDoubleEdit::valueUpdated, this, &Row::editUpdated);
}

void ZelDropDownDoubleSliderEdit::dropDownToggle()
{
    if (!d_->panel)
        return;
    d_->isOpen = !d_->isOpen;
    const bool isOpen = d_->isOpen;
    const QPointer<ZelFlipLabel> flipLabel(d_->flipLabel);
    d_->panel->setVisible(isOpen);
    Q_EMIT widgetVisible(isOpen);
    if (flipLabel)
        flipLabel->setOpen(isOpen);
}

void ZelDropDownDoubleSliderEdit::addWidget(QWidget *widget, int stretch, Qt::Alignment alignment)
{
    if (!d_->panel) {
        qWarning() << "The row has no panel to add a widget to.";
        return;
    }
    d_->panelLayout->addWidget(widget, stretch, alignment);
    updateGeometry();
}

float ZelDropDownDoubleSliderEdit::value() const
{
    return d_->edit->getValue();
}

double ZelDropDownDoubleSliderEdit::sliderMinimum() const
{
    return d_->slider->minVal();
}

double ZelDropDownDoubleSliderEdit::sliderMaximum() const
{
    return d_->slider->maxVal();
}

bool ZelDropDownDoubleSliderEdit::isSliderDown() const
{
    return d_->slider->isSliderDown();
}

void ZelDropDownDoubleSliderEdit::setTracking(bool enable)
{
    if (d_->slider)
        d_->slider->setTracking(enable);
}

void ZelDropDownDoubleSliderEdit::setSuffix(const QString &suffix)
{
    d_->edit->setSuffix(suffix);
}

void ZelDropDownDoubleSliderEdit::setDecimals(int decimals)
{
    d_->edit->setDecimals(decimals);
}

void ZelDropDownDoubleSliderEdit::setDecimalsIsAbsolute(bool absolute)
{
    d_->edit->setDecimalsIsAbsolute(absolute);
    updateValue();
}

void ZelDropDownDoubleSliderEdit::setQuantity(Quantity quantity)
{
    d_->edit->setQuantity(quantity);
}

void ZelDropDownDoubleSliderEdit::setUnit(const ZelUnitManager *manager)
{
    d_->edit->setUnit(manager);
}

void ZelDropDownDoubleSliderEdit::setSliderEditEnabled(bool enabled)
{
    d_->setEnabled(enabled);
}

void ZelDropDownDoubleSliderEdit::setAutoScaleRange(bool autoScale, bool growRange)
{
    d_->setAutoScale(autoScale, growRange);
}

void ZelDropDownDoubleSliderEdit::setLimits(float minimum, float maximum)
{
    d_->setLimits(minimum, maximum);
}

void ZelDropDownDoubleSliderEdit::setRange(double minimum, double maximum)
{
    d_->setRange({minimum, maximum});
}

void ZelDropDownDoubleSliderEdit::setRange(const ZelDropDownDoubleSliderEdit &other)
{
    d_->setRange(other.d_->range());
}

void ZelDropDownDoubleSliderEdit::syncRange(ZelDropDownDoubleSliderEdit &other)
{
    d_->unite(*other.d_);
}

bool ZelDropDownDoubleSliderEdit::computeAdjustedRange(double value, double &minimum,
                                                       double &maximum) const
{
    ZelRangeAdjustment::Range range{minimum, maximum};
    const bool differs = d_->computeRange(value, range);
    minimum = range.minimum;
    maximum = range.maximum;
    return differs;
}

void ZelDropDownDoubleSliderEdit::updateValue(float val)
{
    d_->updateValue(val);
}

void ZelDropDownDoubleSliderEdit::updateValue()
{
    d_->updateValue();
}

void ZelDropDownDoubleSliderEdit::resetValue()
{
    d_->resetValue();
}

void ZelDropDownDoubleSliderEdit::adjustSliderRange(bool force)
{
    const bool isPressed = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
    d_->adjustRange(d_->slider->isSliderDown() || (isPressed && !force));
}

void ZelDropDownDoubleSliderEdit::adjustSliderRange()
{
    adjustSliderRange(false);
}

void ZelDropDownDoubleSliderEdit::adjustSliderRangeDelayed()
{
    d_->adjustRangeDelayed();
}

bool ZelDropDownDoubleSliderEdit::eventFilter(QObject *watched, QEvent *event)
{
    d_->watch(watched, event);
    return QWidget::eventFilter(watched, event);
}

void ZelDropDownDoubleSliderEdit::contextMenuEvent(QContextMenuEvent *event)
{
    if (d_->panel && d_->panel->isVisible() && d_->panel->geometry().contains(event->pos()))
        event->ignore();
    else
        d_->showMenu(event);
}

void ZelDropDownDoubleSliderEdit::editUpdated()
{
    d_->editUpdated();
}

void ZelDropDownDoubleSliderEdit::sliderUpdated()
{
    d_->sliderUpdated();
}
