#pragma once

#include "GalleryPage.h"

#include <ZelSceneGraph/Color>

class QHBoxLayout;
class ZelColorSwatchListView;
class ZelMultiColorTreeView;
class ZelSpectrumDisplay;

/// The swatches, and two lists of sub-colours between which colours are dragged.
class ColorListsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColorListsPage(QWidget *parent = nullptr);

private:
    void addSwatches();
    void addSubColors();
    ZelMultiColorTreeView *addTree(QHBoxLayout *row, const zelsg::Color &color,
                                   const QString &title);
    void take(const ZelColor &color);

    ZelSpectrumDisplay *field_;
    ZelColorSwatchListView *swatches_;
    ZelColor picked_;
};
