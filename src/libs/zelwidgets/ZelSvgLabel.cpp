#include "ZelSvgLabel.h"

ZelSvgLabel::ZelSvgLabel(const QIcon &icon, const QSize &size, QWidget *parent)
    : ZelIconWidget(icon)
{
    setParent(parent);
    setFixedSize(size);
}
