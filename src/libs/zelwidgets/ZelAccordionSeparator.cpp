#include "ZelAccordionSeparator.h"

ZelAccordionSeparator::ZelAccordionSeparator(QWidget *parent, Qt::Orientation orientation)
    : QFrame(parent)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    setObjectName(QStringLiteral("ZelAccordionSeparator"));
    setFrameShape(isHorizontal ? QFrame::HLine : QFrame::VLine);
    setProperty("Orientation",
                isHorizontal ? QStringLiteral("Horizontal") : QStringLiteral("Vertical"));
}
