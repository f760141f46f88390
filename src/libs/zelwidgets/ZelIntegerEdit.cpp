#include "ZelIntegerEdit.h"

#include "ZelControlWheel.h"
#include "ZelNumberDoubleClick.h"
#include "ZelNumberFieldMenu.h"
#include "ZelNumberText.h"

#include <QAccessible>

ZelIntegerEdit::ZelIntegerEdit(QWidget *parent, int minimum, int maximum, int *value)
    : QSpinBox(parent)
    , value_(value)
    , initialValue_(*value)
{
    setObjectName(QStringLiteral("ZelIntegerEdit"));
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusPolicy(Qt::StrongFocus);
    setRange(minimum, maximum);
    setValue(*value_);
    setFixedWidth(80);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setKeyboardTracking(false);
    ZelNumberDoubleClick::install(this);
    connect(this, &QSpinBox::valueChanged, this, &ZelIntegerEdit::valueChangedSlot);
}

float ZelIntegerEdit::getValue()
{
    return static_cast<float>(*value_);
}

void ZelIntegerEdit::updateValue()
{
    disconnect(this, &QSpinBox::valueChanged, this, &ZelIntegerEdit::valueChangedSlot);
    setValue(*value_);
    connect(this, &QSpinBox::valueChanged, this, &ZelIntegerEdit::valueChangedSlot);
}

void ZelIntegerEdit::resetValue()
{
    *value_ = initialValue_;
}

void ZelIntegerEdit::valueChangedSlot(int value)
{
    if (value == *value_)
        return;
    *value_ = value;
    tellChange();
}

void ZelIntegerEdit::tellChange()
{
    QAccessibleValueChangeEvent change(this, *value_);
    QAccessible::updateAccessibility(&change);
    Q_EMIT valueUpdated();
}

void ZelIntegerEdit::resetByUser()
{
    const int before = *value_;
    resetValue();
    updateValue();
    if (before != *value_)
        tellChange();
}

void ZelIntegerEdit::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turnByControlAlone(
        event, Qt::NoModifier, [this](QWheelEvent *turned) { QSpinBox::wheelEvent(turned); });
}

void ZelIntegerEdit::focusOutEvent(QFocusEvent *event)
{
    QSpinBox::focusOutEvent(event);
    Q_EMIT signalFocusOut();
}

void ZelIntegerEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ZelNumberFieldMenu::show(ZelNumberFieldMenu::forField(this, [this] { resetByUser(); }), event);
}

int ZelIntegerEdit::valueFromText(const QString &text) const
{
    return QSpinBox::valueFromText(ZelNumberText::readable(text, locale()));
}

QValidator::State ZelIntegerEdit::validate(QString &text, int &position) const
{
    return ZelNumberText::validate(
        text, position, {prefix(), suffix(), locale()},
        [this](QString &checked, int &at) { return QSpinBox::validate(checked, at); });
}

void ZelIntegerEdit::fixup(QString &text) const
{
    if (ZelNumberText::isNumber(text, {prefix(), suffix(), locale()}))
        QSpinBox::fixup(text);
}
