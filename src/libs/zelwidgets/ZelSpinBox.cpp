#include "ZelSpinBox.h"

#include "ZelControlWheel.h"
#include "ZelNumberText.h"

ZelSpinBox::ZelSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setAlignment(Qt::AlignLeft);
    setKeyboardTracking(false);
    setMinimumWidth(50);
    setFocusPolicy(Qt::StrongFocus);
}

void ZelSpinBox::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turnByControlAlone(
        event, Qt::ControlModifier, [this](QWheelEvent *turned) { QSpinBox::wheelEvent(turned); });
}

void ZelSpinBox::fixup(QString &text) const
{
    if (ZelNumberText::isNumber(text, prefix(), suffix(), locale()))
        QSpinBox::fixup(text);
}
