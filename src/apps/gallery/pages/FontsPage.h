#pragma once

#include "GalleryPage.h"

class QFormLayout;

/// Font units, colours that the sheet carries into code, and the ranked push button.
class FontsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FontsPage(QWidget *parent = nullptr);

    void lookChanged() override { updateValues(); }

private:
    void addMetrics();
    void addSizedWidgets();
    void addCarriers();
    void addButtons();
    void updateValues();

    QFormLayout *metrics_ = nullptr;
    QFormLayout *carriers_ = nullptr;
};
