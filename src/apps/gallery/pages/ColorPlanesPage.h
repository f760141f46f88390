#pragma once

#include "GalleryPage.h"

class QLabel;
class ZelColor;
class ZelSpectrumDisplay;

/// The large colour fields side by side, each keeping up with the others.
class ColorPlanesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColorPlanesPage(QWidget *parent = nullptr);

private:
    void addLinked();
    void addStates();
    /// Shows the colour everywhere but in the field that it comes from.
    void take(const ZelColor &color, const ZelSpectrumDisplay *from);

    QList<ZelSpectrumDisplay *> linked_;
    QLabel *swatch_;
    QLabel *numbers_;
};
