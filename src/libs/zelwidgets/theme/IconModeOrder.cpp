#include "IconModeOrder.h"

#include <QIcon>

IconModeOrder iconModeOrder(int mode, int state)
{
    const int other = state == QIcon::On ? QIcon::Off : QIcon::On;
    if (mode == QIcon::Disabled || mode == QIcon::Selected) {
        const int twin = mode == QIcon::Disabled ? QIcon::Selected : QIcon::Disabled;
        return {{{mode, state},
                 {QIcon::Normal, state},
                 {QIcon::Active, state},
                 {mode, other},
                 {QIcon::Normal, other},
                 {QIcon::Active, other},
                 {twin, state},
                 {twin, other}}};
    }
    const int twin = mode == QIcon::Normal ? QIcon::Active : QIcon::Normal;
    return {{{mode, state},
             {twin, state},
             {mode, other},
             {twin, other},
             {QIcon::Disabled, state},
             {QIcon::Selected, state},
             {QIcon::Disabled, other},
             {QIcon::Selected, other}}};
}
