#include "ZelTimeEdit.h"

#include "ZelControlWheel.h"

ZelTimeEdit::ZelTimeEdit(QWidget *parent)
    : QTimeEdit(QTime(12, 0), parent)
{
    setDisplayFormat(QStringLiteral("HH:mm:ss"));
    setFocusPolicy(Qt::StrongFocus);
}

void ZelTimeEdit::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turn(event, [this](QWheelEvent *turned) { QTimeEdit::wheelEvent(turned); });
}
