#include "ZelSpecificIntegerSliderEdit.h"

#include "ZelIntegerEdit.h"
#include "ZelIntegerSlider.h"
#include "ZelNumberFieldMenu.h"
#include "ZelRangeAdjustment.h"
#include "ZelSliderRow.h"

#include <QDebug>
#include <QLabel>

ZelSpecificIntegerSliderEdit::ZelSpecificIntegerSliderEdit(const QString &text,
                                                           const QList<int> &values, int startIndex,
                                                           int *value, int pageStep)
    : label_(new QLabel(text, this))
    , values_(values)
    , index_(startIndex)
    , value_(value)
{
    if (values_.isEmpty()) {
        qWarning() << "No values for the row" << text;
        values_.append(0);
    }
    ZelSliderRow::expandSideways(this);
    edit_ = new ZelIntegerEdit(this, 0, values_.constLast(), value);
    slider_ = new ZelIntegerSlider(this, 0, static_cast<int>(values_.size()) - 1, &index_);
    slider_->setSingleStep(1);
    slider_->setPageStep(pageStep);
    ZelSliderRow::layOut(this, label_, edit_, slider_);
    ZelSliderRow::describe(label_, edit_, slider_);
    label_->installEventFilter(this);
    connectParts();
}

ZelSpecificIntegerSliderEdit::~ZelSpecificIntegerSliderEdit()
{
    // The slider is bound to a number in here.
    delete slider_;
    delete edit_;
}

void ZelSpecificIntegerSliderEdit::connectParts()
{
    using Row = ZelSpecificIntegerSliderEdit;
    connect(slider_, &ZelIntegerSlider::valueUpdated, this, &Row::takeSlider);
    connect(slider_, &QAbstractSlider::sliderReleased, this, &Row::sliderReleased);
    connect(edit_, &ZelIntegerEdit::valueUpdated, this, &Row::takeEdit);
    connect(edit_, &QAbstractSpinBox::editingFinished, this, &Row::returnPressed);
}

void ZelSpecificIntegerSliderEdit::takeSlider()
{
    *value_ = values_.at(qBound(0, index_, static_cast<int>(values_.size()) - 1));
    const QPointer<ZelIntegerEdit> edit(edit_);
    Q_EMIT valueUpdated();
    if (edit)
        edit->updateValue();
}

void ZelSpecificIntegerSliderEdit::takeEdit()
{
    clampToClosestValue();
    edit_->updateValue();
    const QPointer<QObject> alive(this);
    Q_EMIT valueUpdated();
    if (!alive)
        return;
    slider_->updateValue();
    Q_EMIT editUpdated();
}

void ZelSpecificIntegerSliderEdit::clampToClosestValue()
{
    index_ = ZelRangeAdjustment::closest(values_, *value_);
    *value_ = values_.at(index_);
}

void ZelSpecificIntegerSliderEdit::setSuffix(const QString &suffix)
{
    edit_->setSuffix(suffix);
}

void ZelSpecificIntegerSliderEdit::setVisible(bool visible)
{
    const bool wasHidden = isHidden();
    QWidget::setVisible(visible);
    if (isHidden() != wasHidden)
        Q_EMIT visibleStateChanged();
}

void ZelSpecificIntegerSliderEdit::updateValue()
{
    clampToClosestValue();
    slider_->updateValue();
    edit_->updateValue();
}

bool ZelSpecificIntegerSliderEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (ZelSliderRow::isResetClick(label_, watched, event))
        resetByUser();
    return QWidget::eventFilter(watched, event);
}

void ZelSpecificIntegerSliderEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ZelNumberFieldMenu::show(ZelNumberFieldMenu::forRow(this, edit_, [this] { resetByUser(); }),
                             event);
}

void ZelSpecificIntegerSliderEdit::resetByUser()
{
    if (!edit_->isEnabled())
        return;
    const int before = *value_;
    edit_->resetValue();
    updateValue();
    if (*value_ != before)
        Q_EMIT valueUpdated();
}
