#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QSize>
#include <Qt>

class QAbstractItemView;

/// How far scroll bars overlap the content of an item view. They don't; callers keep their
/// allowance for it.
class ZELWIDGETS_EXPORT ScrollbarHelper
{
public:
    ScrollbarHelper() = delete;

    /// Always 0.
    static int overlapScrollbarBugPixels(const QAbstractItemView *view,
                                         Qt::Orientation orientation);
    /// Always (0, 0).
    static QSize overlapScrollbarBugSize(const QAbstractItemView *view);
};
