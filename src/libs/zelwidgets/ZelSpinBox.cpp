#include "ZelSpinBox.h"

#include "ZelControlWheel.h"
#include "ZelNumberDoubleClick.h"
#include "ZelNumberText.h"

ZelSpinBox::ZelSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setAlignment(Qt::AlignLeft);
    setKeyboardTracking(false);
    ZelNumberDoubleClick::install(this);
    setMinimumWidth(50);
    setFocusPolicy(Qt::StrongFocus);
}

void ZelSpinBox::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turnByControlAlone(
        event, Qt::ControlModifier, [this](QWheelEvent *turned) { QSpinBox::wheelEvent(turned); });
}

int ZelSpinBox::valueFromText(const QString &text) const
{
    return QSpinBox::valueFromText(ZelNumberText::readable(text, locale()));
}

QValidator::State ZelSpinBox::validate(QString &text, int &position) const
{
    return ZelNumberText::validate(
        text, position, {prefix(), suffix(), locale()},
        [this](QString &checked, int &at) { return QSpinBox::validate(checked, at); });
}

void ZelSpinBox::fixup(QString &text) const
{
    if (ZelNumberText::isNumber(text, {prefix(), suffix(), locale()}))
        QSpinBox::fixup(text);
}
