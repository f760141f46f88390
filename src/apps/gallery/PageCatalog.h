#pragma once

#include <QList>
#include <QString>

class GalleryPage;

/// A page that the gallery can show: created when it is first looked at.
struct PageEntry
{
    QString id;      ///< for the command line and for file names
    QString title;   ///< as the list shows it
    QString purpose; ///< one line for the tool tip and the filter
    QString icon;    ///< base name of its picture in :/ui/icons
    GalleryPage *(*create)();
};

/// All pages in the order of the list.
const QList<PageEntry> &pageCatalog();
/// Index of the page with the id or title, regardless of case; -1 if there is none.
int pageIndex(const QString &name);
