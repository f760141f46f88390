#pragma once

#include "GalleryPage.h"

class QFormLayout;

/// Sizes with their aspect, and geographic positions.
class SizesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SizesPage(QWidget *parent = nullptr);

private:
    void addSizes();
    void addPositions();
    void addPosition(QFormLayout *form, const QString &name, float latitude, float longitude);
};
