#pragma once

#include "GalleryPage.h"

class QStandardItemModel;

/// Headers, splitters, the handle and the side bars.
class HeadersPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit HeadersPage(QWidget *parent = nullptr);

private:
    void addTables();
    void addSplitters();
    void addSideBars();
    QWidget *persistentTable();
    QWidget *dragTable();

    QStandardItemModel *materials_;
    QStandardItemModel *layers_;
};
