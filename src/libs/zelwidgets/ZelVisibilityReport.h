#pragma once

#include <QWidget>

/// What setVisible() does in the containers that report their visibility.
template <typename Container>
void setVisibleAndReport(Container *container, bool visible)
{
    container->QWidget::setVisible(visible);
    container->updateGeometry();
    Q_EMIT container->visibilityChanged(visible);
}
