#include "ScrollbarHelper.h"

int ScrollbarHelper::overlapScrollbarBugPixels(const QAbstractItemView *, Qt::Orientation)
{
    return 0;
}

QSize ScrollbarHelper::overlapScrollbarBugSize(const QAbstractItemView *)
{
    return QSize(0, 0);
}
