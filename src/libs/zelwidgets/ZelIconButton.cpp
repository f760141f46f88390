#include "ZelIconButton.h"

ZelIconButton::ZelIconButton()
{
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
}

void ZelIconButton::setUserData(const QVariant &data)
{
    userData_ = data;
}
