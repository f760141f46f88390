#include "color/ZelFrame.h"

ZelFrame::ZelFrame(QWidget *parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover);
}

ZelFrame::~ZelFrame() = default;
