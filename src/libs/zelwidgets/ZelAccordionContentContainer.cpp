#include "ZelAccordionContentContainer.h"

ZelAccordionContentContainer::ZelAccordionContentContainer(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZelAccordionContentContainer"));
}

void ZelAccordionContentContainer::setVisible(bool visible)
{
    QWidget::setVisible(visible);
    updateGeometry();
    Q_EMIT visibilityChanged(visible);
}
