#include "SingleClickActivationStyle.h"

int SingleClickActivationStyle::styleHint(StyleHint hint, const QStyleOption *option,
                                          const QWidget *widget, QStyleHintReturn *returnData) const
{
    if (hint == SH_ItemView_ActivateItemOnSingleClick)
        return 1;
    return ZelStyleForwarder::styleHint(hint, option, widget, returnData);
}
