#pragma once

#include "GalleryPage.h"

/// The text fields, combo boxes, validators and file fields.
class TextsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TextsPage(QWidget *parent = nullptr);

private:
    void addLineEdits();
    void addChoices();
    void addSearch();
    void addFileFields();
    void addFileNameDisplays();
};
