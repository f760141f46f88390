#include "ZelTinyIconButton.h"

#include "ZelAccessible.h"
#include "ZelFocusFrame.h"

ZelTinyIconButton::ZelTinyIconButton(const QIcon &icon, const QSize &iconSize,
                                     const QString &toolTip, QWidget *parent)
    : QToolButton(parent)
{
    ZelAccessible::installFactory();
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
