#include "ZelSeparator.h"

#include <QStyle>
#include <QToolBar>

namespace {

Qt::Orientation across(Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
}

} // namespace

ZelSeparator::ZelSeparator(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , orientation_(orientation)
{
    setAttribute(Qt::WA_StyledBackground);
    applyOrientation();
}

Qt::Orientation ZelSeparator::orientation() const
{
    return orientation_;
}

void ZelSeparator::setOrientation(Qt::Orientation orientation)
{
    if (orientation_ == orientation)
        return;
    orientation_ = orientation;
    applyOrientation();
}

void ZelSeparator::applyOrientation()
{
    const bool isVertical = orientation_ == Qt::Vertical;
    setObjectName(isVertical ? QStringLiteral("VerticalSeparator")
                             : QStringLiteral("HorizontalSeparator"));
    setSizePolicy(isVertical ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                  isVertical ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    if (!testAttribute(Qt::WA_WState_Polished))
        return;
    // The limits that the sheet set belong to the other direction.
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    style()->unpolish(this);
    style()->polish(this);
    updateGeometry();
}

QSize ZelSeparator::sizeHint() const
{
    return {1, 1};
}

ZelSeparatorAction::ZelSeparatorAction(QWidget *parent)
    : QWidgetAction(parent)
{
    // Keys step over it in a menu.
    setSeparator(true);
}

QWidget *ZelSeparatorAction::createWidget(QWidget *parent)
{
    const auto *toolBar = qobject_cast<QToolBar *>(parent);
    if (!toolBar)
        return new ZelSeparator(Qt::Horizontal, parent);
    auto *separator = new ZelSeparator(across(toolBar->orientation()), parent);
    connect(toolBar, &QToolBar::orientationChanged, separator,
            [separator](Qt::Orientation orientation) {
                separator->setOrientation(across(orientation));
            });
    return separator;
}
