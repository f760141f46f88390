#pragma once

#include <ZelWidgets/zelwidgets_export.h>

class QBitmap;
class QListWidgetItem;
class QSize;

/// The application's side of a ZelIconListWidget.
class ZELWIDGETS_EXPORT ZelIconListWidgetAdapter
{
public:
    virtual ~ZelIconListWidgetAdapter();

    /// By the shortcut, or by a Shift+click on the selected item.
    virtual void copyItem(QListWidgetItem *item) = 0;
    /// By a double click, or by Return.
    virtual void openItem(QListWidgetItem *item) = 0;
    virtual void showToolTip(QListWidgetItem *item) = 0;
    virtual void hideToolTip() = 0;
    /// The shape of the item's picture while it is dragged, which the list deletes; null for none.
    virtual QBitmap *dragMask(QListWidgetItem *item, QSize const &size,
                              double devicePixelRatio) = 0;
};
