#include "ZelTinyIconButton.h"

#include "ZelAccessibleButton.h"
#include "ZelFocusFrame.h"

ZelTinyIconButton::ZelTinyIconButton(const QIcon &icon, const QSize &iconSize,
                                     const QString &toolTip, QWidget *parent)
    : QToolButton(parent)
{
    ZelAccessibleButton::installFactory();
    setIcon(icon);
    setIconSize(iconSize);
    setToolTip(toolTip);
    setAutoRaise(true);
    setStyleSheet(QStringLiteral("QToolButton { background-color: transparent; border: none; }"));
}

void ZelTinyIconButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    if (hasFocus())
        ZelFocusFrame::paint(this);
}
