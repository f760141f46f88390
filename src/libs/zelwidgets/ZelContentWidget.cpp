#include "ZelContentWidget.h"

#include "ZelVisibilityReport.h"

ZelContentWidget::ZelContentWidget(QWidget *parent)
    : QWidget(parent)
{}

void ZelContentWidget::setVisible(bool visible)
{
    setVisibleAndReport(this, visible);
}

ZelContentWidget2::ZelContentWidget2(QWidget *parent)
    : QWidget(parent)
{}

void ZelContentWidget2::setVisible(bool visible)
{
    setVisibleAndReport(this, visible);
}
