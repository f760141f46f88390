#pragma once

#include "GalleryPage.h"

#include <array>

/// Dials, thumb wheels, scales and groups that flip open.
class DialsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit DialsPage(QWidget *parent = nullptr);

private:
    void addDials();
    void addWheels();
    void addScales();
    void addGroups();

    std::array<float, 3> numbers_{0.5F, 0.2F, 3};
};
