#pragma once

#include "GalleryPage.h"

/// The editor on the shortcuts of the gallery and of the library.
class ShortcutsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ShortcutsPage(QWidget *parent = nullptr);
};
