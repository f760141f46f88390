#pragma once

#include "GalleryPage.h"

class MaterialList;
class QSlider;

/// The browser of a library of ten thousand materials, a collection beside it, and the other lists.
class IconListPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit IconListPage(QWidget *parent = nullptr);

private:
    void addBrowser();
    QWidget *toolRow();
    QWidget *kindList();
    void addOtherLists();
    QWidget *nameList();
    QWidget *inbox();
    void zoom(int delta);

    MaterialList *library_;
    MaterialList *collection_;
    QSlider *sizes_;
};
