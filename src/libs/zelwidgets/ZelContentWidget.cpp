#include "ZelContentWidget.h"

ZelContentWidget::ZelContentWidget(QWidget *parent)
    : QWidget(parent)
{}

void ZelContentWidget::setVisible(bool visible)
{
    QWidget::setVisible(visible);
    updateGeometry();
    Q_EMIT visibilityChanged(visible);
}

ZelContentWidget2::ZelContentWidget2(QWidget *parent)
    : QWidget(parent)
{}

void ZelContentWidget2::setVisible(bool visible)
{
    QWidget::setVisible(visible);
    updateGeometry();
    Q_EMIT visibilityChanged(visible);
}
