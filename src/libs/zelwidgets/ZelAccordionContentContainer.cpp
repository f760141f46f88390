#include "ZelAccordionContentContainer.h"

#include "ZelVisibilityReport.h"

ZelAccordionContentContainer::ZelAccordionContentContainer(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZelAccordionContentContainer"));
}

void ZelAccordionContentContainer::setVisible(bool visible)
{
    setVisibleAndReport(this, visible);
}
