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

int ZelSpinBox::valueFromText(const QString &text) const
{
    return QSpinBox::valueFromText(ZelNumberText::readable(text, locale()));
}

QValidator::State ZelSpinBox::validate(QString &text, int &position) const
{
    ZelNumberText::makeReadable(text, position, locale());
    const QValidator::State state = QSpinBox::validate(text, position);
    return ZelNumberText::judge(state, text, prefix(), suffix(), locale());
}

void ZelSpinBox::fixup(QString &text) const
{
    if (ZelNumberText::isNumber(text, prefix(), suffix(), locale()))
        QSpinBox::fixup(text);
}
