#include "ZelResources.h"

#include <QtGlobal>

int zelmorawidgets_init_resources()
{
    Q_INIT_RESOURCE(zelmorawidgets);
    return 1;
}
