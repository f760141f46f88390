#pragma once

#include "GalleryPage.h"

#include <ZelCore/ZelColor>

#include <QList>

class ColorSample;
class QGridLayout;
class ZelColorInput;
class ZelHueSlider;

/// One colour in all inputs at once, as a colour dialog would hold them together, with the switches
/// of the display's gamma; and channels one by one.
class ColorInputsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColorInputsPage(QWidget *parent = nullptr);

private:
    void addInputs();
    void addInput(QGridLayout *grid, ZelColorInput *input, const QString &name);
    void addSample(QGridLayout *grid);
    void addSwitches(QVBoxLayout *section);
    void addChannels();

    void takeColor(const ZelColor &color);
    void takeHue(int hue);

    ZelColor color_;
    QList<ZelColorInput *> inputs_;
    ZelHueSlider *hue_ = nullptr;
    ColorSample *sample_ = nullptr;
};
