#pragma once

#include <ZelCore/ZelColor>
#include <ZelSceneGraph/Color>
#include <ZelWidgets/ILibrary>
#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QDialog>

#include <memory>
#include <string>

class QLayout;
class QScreen;
class ZelColorDialogPrivate;
class ZelColorInput;
class ZelSpectrumDisplay;

/// The colour picker of the application: a tool window, mostly non-modal, that edits one colour or
/// a list of sub-colours of which one is active.
///
/// All its widgets show the active sub-colour, and a change in one of them reaches the others. The
/// owner follows with colorChanged(), live:
///
///     auto *dialog = new ZelColorDialog(panel, color, tr("Sky"), library);
///     connect(dialog, &ZelColorDialog::colorChanged, this, &Panel::takeColor);
///     dialog->show();
///
/// The dialog works on a copy, and the colours in its signals are copies as well. Colours are
/// linear; what is shown and typed may be gamma-corrected, which the user chooses in the menu of
/// the dialog. Window size, spectrum and colour space are remembered in the settings.
class ZELWIDGETS_EXPORT ZelColorDialog : public QDialog
{
    Q_OBJECT

public:
    /// Comes up at the position, in global coordinates; a null position leaves the place to the
    /// dialog. The name is the text of the name field; the library may be null.
    ZelColorDialog(const QPoint &position, const zelsg::Color &color, QString name,
                   ILibrary *library);
    /// Comes up below its parent.
    ZelColorDialog(QWidget *parent, const zelsg::Color &color, QString name, ILibrary *library);
    ~ZelColorDialog() override;

    /// A copy of the edited colour, with the text of the name field as its name.
    zelsg::Color getColor();
    /// The text of the name field without superfluous white space.
    QString getColorName() const;
    /// The active sub-colour, with the alpha of the transparency.
    QColor getQColor() const;

    /// Shows another colour, or another active sub-colour; no signal is emitted.
    void setColorNoSignal(const zelsg::Color &color);
    void setActiveColorNoSignal(const ZelColor &color);
    /// Sets what reject() gives back, and the old colour that is shown beside the new one.
    void setInitialColor(const zelsg::Color &color);
    /// Shows the slider for the transparency. The value is the alpha, 0 to 1; what is outside
    /// counts as the nearest of them, and what isn't a number is refused with a warning.
    void setTransparency(float value);
    /// Chooses the colour space: RGB, CMYK, HSV, greyscale, CIE-L*ab, kelvin. Nothing for other
    /// indices.
    void setColorInputIndex(int index);
    /// Comes up with the temperature; the user's choice in the settings stays.
    void showKelvinAsDefaultColorInput(bool show);
    /// Whether accept() insists on a name.
    void checkEmptyNameAtOk(bool check);
    void hideNameEdit();
    void hideOldNewSelector();
    void showMakeMultiColorButton();
    void showSaveToLibraryButton();
    void setFocusOnNameEdit();
    /// Takes the colour and accepts.
    void doubleClick(const ZelColor &color);

    void setVisible(bool visible) override;

public Q_SLOTS:
    /// The colour becomes the one that a later reject() gives back. The dialog stays open, with a
    /// warning, if a name is asked for and there is none.
    void accept() override;
    /// Gives the initial colour back if there was a change.
    void reject() override;

Q_SIGNALS:
    /// The user changed the colour; or took all changes back, and then the colour is the initial
    /// one.
    void colorChanged(zelsg::Color col, bool cancelled);
    /// The user wants the colour, or a sub-colour, in the application's library.
    void saveColorToLibrary(zelsg::Color col);
    /// Whether the numbers are display values from now on.
    void gammaDisplayChanged(bool useGamma);

private Q_SLOTS:
    void setColor(const ZelColor &c);
    void subColorsChanged(const ZelColor &c);
    void hexValueEdited();
    void takeDisplayColor(const ZelColor &color);
    void addSubColorToMultiColor();
    void addColorSwatch();
    void nameChanged(const QString &name);
    void saveSettings();
    void hueColorFieldClicked();
    void triadicColorWheelClicked();
    void updateSliderGamma(bool b);
    void updateDisplayGamma(bool b);
    void gammaCorrectValuesChanged(bool b);
    void gammaCorrectChanged(bool b);
    void pickMode();
    void toggleMultiColor();
    void saveToLibrary();
    void transparencyChanged();

private:
    void init(const zelsg::Color &color, QString name, ILibrary *library);
    QLayout *setupNameEdit();
    void setupMultiColorList(ILibrary *library);
    void setupViewer();
    void setupColorSpectrumWidgets();
    QLayout *setupHexRow();
    QLayout *setupHexValueEdit();
    void setupButtons();
    void updatePickButton();
    void setupConfigMenu();
    QLayout *setupColorSpaceInputLayout();
    void addColorSpaceInput(const QString &name, ZelColorInput *input);
    void setupTransparency();
    QLayout *setupColorSwatchList();
    QWidget *setupButtonBox();
    void setFocusPolicies();

    void activateColorSpectrum(int index);
    void setMultiColorUI();
    void shareWithTree();
    /// Shows the colour in viewer, spectra, inputs and the hex field.
    void showColor(const ZelColor &color, const QObject *except = nullptr);
    /// Shows the name of the colour if it isn't the former one any more.
    void showNewName(const std::string &former);
    void updateHex(const ZelColor &color);
    void emitColorChanged(const zelsg::Color &color, bool cancelled);
    void beforeShowFirstTime();
    void beforeHide();
    QSize sizeInUnitsFromStoredSize(const QScreen *screen);
    void takeApart();

    std::unique_ptr<ZelColorDialogPrivate> d_;
};
