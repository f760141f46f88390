#pragma once

#include "GalleryPage.h"

#include <ZelCore/ZelColor>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class ZelColorInput;
class ZelColorWidget;
class ZelRGBSpectrumDisplay;

/// One colour in all spaces side by side, with its name and its temperature.
class ColorValuesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColorValuesPage(QWidget *parent = nullptr);

private:
    void addChoice();
    void addTable();
    void take(const ZelColor &color);
    void takeFromUser(const ZelColor &color);
    void updateTable();

    ZelColor color_;
    QComboBox *samples_ = nullptr;
    QLineEdit *name_ = nullptr;
    ZelRGBSpectrumDisplay *plane_ = nullptr;
    ZelColorInput *temperature_ = nullptr;
    ZelColorWidget *field_ = nullptr;
    QList<QLabel *> cells_;
};
