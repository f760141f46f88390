#pragma once

#include "GalleryPage.h"

/// Labels with eliding and wrapping, links, icons and pictures.
class LabelsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit LabelsPage(QWidget *parent = nullptr);

private:
    void addTexts();
    void addWrapping();
    void addLinks();
    void addIcons();
    void addPictures();
    void addCaptions();
};
