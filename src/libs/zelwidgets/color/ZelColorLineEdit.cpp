#include "color/ZelColorLineEdit.h"

#include "ZelControlWheel.h"
#include "ZelNumberDoubleClick.h"

#include <QKeyEvent>

ZelColorLineEdit::ZelColorLineEdit(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setKeyboardTracking(false);
    setButtonSymbols(NoButtons);
    ZelNumberDoubleClick::install(this);
    setFocusPolicy(Qt::StrongFocus);
}

ZelColorLineEdit::~ZelColorLineEdit() = default;

void ZelColorLineEdit::keyPressEvent(QKeyEvent *event)
{
    QDoubleSpinBox::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

void ZelColorLineEdit::wheelEvent(QWheelEvent *event)
{
    ZelControlWheel::turn(event,
                          [this](QWheelEvent *turned) { QDoubleSpinBox::wheelEvent(turned); });
}
