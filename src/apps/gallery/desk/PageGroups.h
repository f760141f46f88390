#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The tabs of the library window and of the project window that hold pages of the catalog.
struct PageGroupEntry
{
    QString id;
    QString title;
    QString icon;
    /// Ids of the catalog.
    QStringList pages;
    bool isInProject = false;
};

/// All groups in the order of the tabs; each page of the catalog is in one of them.
const QList<PageGroupEntry> &pageGroups();
