#pragma once

#include <ZelCore/ZelColor>
#include <ZelCore/ZelSettings>
#include <ZelSceneGraph/Color>

#include <QList>
#include <QPoint>

class HexValueLineEdit;
class QAction;
class QLabel;
class QLineEdit;
class QStackedWidget;
class ZelColorInput;
class ZelColorSwatchListView;
class ZelColorViewer;
class ZelComboBox;
class ZelIntegerSliderEdit;
class ZelListWithAddition;
class ZelMultiColorTreeView;
class ZelSpectrumDisplay;
class ZelToolButton;
class QWidget;

/// What the colour dialog is made of. Widgets belong to the dialog.
class ZelColorDialogPrivate
{
public:
    QLabel *nameLabel = nullptr;
    QLineEdit *nameEdit = nullptr;
    ZelMultiColorTreeView *multiColorTree = nullptr;
    ZelListWithAddition *multiColorList = nullptr;
    /// What multiColorList is the layout of.
    QWidget *multiColorFrame = nullptr;
    bool checkEmptyName = false;
    ZelSettings settings{QStringLiteral("ColorDialog")};
    ZelSettings colorSettings{QStringLiteral("colors")};
    /// The tree works on this very object.
    zelsg::Color color;
    zelsg::Color initialColor;
    bool gammaInput = true;
    bool gammaDisplay = true;
    int spectrumIndex = 0;
    ZelColorViewer *viewer = nullptr;
    ZelComboBox *colorSpaceCombo = nullptr;
    QStackedWidget *spectrumStack = nullptr;
    QList<ZelSpectrumDisplay *> spectra;
    QStackedWidget *inputStack = nullptr;
    QList<ZelColorInput *> inputs;
    HexValueLineEdit *hexEdit = nullptr;
    QString shownHex;
    ZelToolButton *pickButton = nullptr;
    ZelToolButton *saveToLibraryButton = nullptr;
    ZelToolButton *multiColorButton = nullptr;
    ZelToolButton *configButton = nullptr;
    QAction *gammaInputAction = nullptr;
    QAction *gammaDisplayAction = nullptr;
    ZelIntegerSliderEdit *transparencySlider = nullptr;
    int transparency = 0;
    bool firstShow = true;
    ZelColorSwatchListView *swatchList = nullptr;
    QPoint preferredPosition;
};
