#include "AnimationControlStyler.h"

int AnimationControlStyler::styleHint(StyleHint hint, const QStyleOption *option,
                                      const QWidget *widget, QStyleHintReturn *returnData) const
{
    // Main windows ask for the duration only.
    if (hint == SH_Widget_Animate || hint == SH_Widget_Animation_Duration)
        return 0;
    return ZelStyleForwarder::styleHint(hint, option, widget, returnData);
}
