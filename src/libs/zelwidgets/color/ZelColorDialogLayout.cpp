// How the colour dialog is put together.

#include "ZelStoredValue.h"
#include "color/ZelColorDialog.h"
#include "color/ZelColorDialogPrivate.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/HexValueLineEdit>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSwatchListView>
#include <ZelWidgets/ZelColorTriangle>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelEyeDropper>
#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelIntegerSliderEdit>
#include <ZelWidgets/ZelListWithAddition>
#include <ZelWidgets/ZelMultiColorTreeView>
#include <ZelWidgets/ZelRGBSpectrumDisplay>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QActionGroup>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QStyle>

namespace {

constexpr int margin = 4;
constexpr int captionSpacing = 2;
/// As many sub-colours are seen at once, about.
constexpr int treeRows = 6;

// Everything gets its parent at once: with a style sheet, every change of parent costs dearly.

QLabel *labelFor(QWidget *field, const QString &text)
{
    auto *label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(text);
    return label;
}

ZelToolButton *button(QWidget *parent, const QString &icon, const QString &toolTip)
{
    auto *button = new ZelToolButton(ZelToolButton::Flat, parent);
    button->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/") + icon));
    button->setToolTip(toolTip);
    return button;
}

QAction *checkable(QMenu *menu, const QString &text, bool isChecked)
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(isChecked);
    return action;
}

/// The sheet selects by the rank, and has looked at the button already.
void setRank(QPushButton *button, const QString &rank)
{
    button->setProperty("rank", rank);
    button->style()->unpolish(button);
    button->style()->polish(button);
}

/// A stored index, 0 if there is no such entry.
int storedIndex(const ZelSettings &settings, const QString &key, int count)
{
    const int index = storedValue(settings, key, 0);
    return index >= 0 && index < count ? index : 0;
}

} // namespace

void ZelColorDialog::init(const zelsg::Color &color, QString name, ILibrary *library)
{
    d_->gammaInput =
        storedValue(d_->colorSettings, QStringLiteral("enable_gamma_correction_input"), true);
    d_->gammaDisplay =
        storedValue(d_->colorSettings, QStringLiteral("enable_gamma_correction"), true);
    d_->spectrumIndex = storedIndex(d_->settings, QStringLiteral("spectrum"), 2);
    d_->color = color.detachedClone();
    if (!name.isEmpty())
        d_->color.setColorName(name.toStdString());
    d_->initialColor = color.detachedClone();
    d_->initialColor.setColorName((name.isEmpty() ? tr("Color") : name).toStdString());
    setWindowFlags(Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
    setWindowTitle(tr("Color Picker"));

    // The Tab key goes through the parts in the order in which they are made.
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addLayout(setupNameEdit());
    d_->nameEdit->setText(name);
    setupMultiColorList(library);
    layout->addWidget(d_->multiColorFrame);
    setupViewer();
    layout->addWidget(d_->viewer);
    setupColorSpectrumWidgets();
    layout->addWidget(d_->spectrumStack, 1);
    layout->addSpacing(4);
    layout->addLayout(setupHexRow());
    layout->addLayout(setupColorSpaceInputLayout());
    setupTransparency();
    layout->addWidget(d_->transparencySlider);
    layout->addSpacing(6);
    layout->addLayout(setupColorSwatchList());
    layout->addSpacing(4);
    layout->addWidget(setupButtonBox());

    updateHex(d_->color.getActive());
    setMultiColorUI();
    setFocusPolicies();
    connect(d_->nameEdit, &QLineEdit::textChanged, this, &ZelColorDialog::nameChanged);
    ZelGammaPolicy *policy = ZelGammaPolicy::get();
    connect(policy, &ZelGammaPolicy::gammaCorrectValuesChanged, this,
            &ZelColorDialog::gammaCorrectValuesChanged);
    connect(policy, &ZelGammaPolicy::gammaCorrectChanged, this,
            &ZelColorDialog::gammaCorrectChanged);
}

void ZelColorDialog::setupViewer()
{
    d_->viewer = new ZelColorViewer(d_->color.getActive(), this);
    connect(d_->viewer, &ZelColorViewer::colorSelected, this, &ZelColorDialog::setColor);
    connect(d_->viewer, &ZelColorViewer::doubleClick, this, &ZelColorDialog::doubleClick);
}

QLayout *ZelColorDialog::setupNameEdit()
{
    d_->nameEdit = new QLineEdit(this);
    d_->nameLabel = labelFor(d_->nameEdit, tr("Name"));
    auto *row = new QHBoxLayout;
    row->addWidget(d_->nameLabel);
    row->addSpacing(captionSpacing);
    row->addWidget(d_->nameEdit, 1);
    return row;
}

void ZelColorDialog::setupMultiColorList(ILibrary *library)
{
    d_->multiColorFrame = new QWidget(this);
    d_->multiColorTree = new ZelMultiColorTreeView(library, d_->multiColorFrame);
    d_->multiColorTree->setMaximumHeight(ZelFontMetrics(this).editorHeight() * treeRows);
    d_->multiColorTree->setAccessibleName(tr("Sub-colors"));
    d_->multiColorList =
        new ZelListWithAddition(tr("Sub-colors"), tr("Add a sub-color"), d_->multiColorTree);
    d_->multiColorList->setContentsMargins(0, 0, 0, 0);
    d_->multiColorFrame->setLayout(d_->multiColorList);
    connect(d_->multiColorList, qOverload<>(&ZelListWithAddition::addItem), this,
            &ZelColorDialog::addSubColorToMultiColor);
    connect(d_->multiColorTree, &ZelMultiColorTreeView::colorChanged, this,
            &ZelColorDialog::subColorsChanged);
    connect(d_->multiColorTree, &ZelMultiColorTreeView::saveColorToLibrary, this,
            &ZelColorDialog::saveColorToLibrary);
}

void ZelColorDialog::setupColorSpectrumWidgets()
{
    const ZelColor color = d_->color.getActive();
    d_->spectrumStack = new QStackedWidget(this);
    auto *triangle = new ZelColorTriangle(color, d_->spectrumStack);
    triangle->setAccessibleName(tr("Triadic color wheel"));
    d_->spectra = {new ZelRGBSpectrumDisplay(color, d_->spectrumStack), triangle};
    for (ZelSpectrumDisplay *display : std::as_const(d_->spectra)) {
        connect(display, qOverload<ZelColor>(&ZelSpectrumDisplay::colorChanged), this,
                &ZelColorDialog::setColor);
        d_->spectrumStack->addWidget(display);
    }
    d_->spectrumStack->setCurrentIndex(d_->spectrumIndex);
}

QLayout *ZelColorDialog::setupHexRow()
{
    auto *row = new QHBoxLayout;
    row->addLayout(setupHexValueEdit());
    setupButtons();
    row->addStretch();
    for (ZelToolButton *each :
         {d_->pickButton, d_->saveToLibraryButton, d_->multiColorButton, d_->configButton})
        row->addWidget(each, 0, Qt::AlignTop);
    return row;
}

QLayout *ZelColorDialog::setupHexValueEdit()
{
    d_->hexEdit = new HexValueLineEdit(this);
    d_->hexEdit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(d_->hexEdit, &QLineEdit::editingFinished, this, &ZelColorDialog::hexValueEdited);
    connect(d_->hexEdit, &HexValueLineEdit::colorPasted, this, &ZelColorDialog::takeDisplayColor);
    auto *row = new QHBoxLayout;
    row->addWidget(labelFor(d_->hexEdit, tr("Hex")));
    row->addSpacing(captionSpacing);
    row->addWidget(d_->hexEdit);
    return row;
}

void ZelColorDialog::setupButtons()
{
    d_->pickButton = button(this, QStringLiteral("eyedropper"), tr("Pick a color"));
    updatePickButton();
    connect(d_->pickButton, &QAbstractButton::clicked, this, &ZelColorDialog::pickMode);

    d_->saveToLibraryButton = button(this, QStringLiteral("save"), tr("Save color to library"));
    d_->saveToLibraryButton->hide();
    connect(d_->saveToLibraryButton, &QAbstractButton::clicked, this,
            &ZelColorDialog::saveToLibrary);

    d_->multiColorButton = button(this, QStringLiteral("multi_color"), QString());
    d_->multiColorButton->setCheckable(true);
    d_->multiColorButton->hide();
    connect(d_->multiColorButton, &QAbstractButton::clicked, this,
            &ZelColorDialog::toggleMultiColor);

    d_->configButton = button(this, QStringLiteral("settings_dropdown"), tr("Configurations"));
    d_->configButton->setPopupMode(QToolButton::InstantPopup);
    d_->configButton->setPaintMenuArrow(false);
    setupConfigMenu();
}

void ZelColorDialog::updatePickButton()
{
    QString reason;
    const bool canPick = ZelEyeDropper::isAvailable(&reason);
    d_->pickButton->setEnabled(canPick);
    d_->pickButton->setToolTip(canPick ? tr("Pick a color") : reason);
}

void ZelColorDialog::setupConfigMenu()
{
    auto *menu = new QMenu(d_->configButton);
    d_->configButton->setMenu(menu);
    d_->gammaInputAction =
        checkable(menu, tr("Use gamma corrected values for input"), d_->gammaInput);
    d_->gammaDisplayAction = checkable(
        menu, tr("Apply Image Gamma to colors in Swatches and Color Pickers"), d_->gammaDisplay);
    connect(d_->gammaInputAction, &QAction::triggered, this, &ZelColorDialog::updateSliderGamma);
    connect(d_->gammaDisplayAction, &QAction::triggered, this, &ZelColorDialog::updateDisplayGamma);
    menu->addSeparator();
    QAction *field = checkable(menu, tr("Use Hue Color Field"), d_->spectrumIndex == 0);
    QAction *wheel = checkable(menu, tr("Use Triadic Color Wheel"), d_->spectrumIndex == 1);
    auto *group = new QActionGroup(menu);
    group->addAction(field);
    group->addAction(wheel);
    connect(field, &QAction::triggered, this, &ZelColorDialog::hueColorFieldClicked);
    connect(wheel, &QAction::triggered, this, &ZelColorDialog::triadicColorWheelClicked);
}

QLayout *ZelColorDialog::setupColorSpaceInputLayout()
{
    d_->colorSpaceCombo = new ZelComboBox(this);
    d_->inputStack = new QStackedWidget(this);
    d_->inputStack->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const ZelColor color = d_->color.getActive();
    const bool gamma = d_->gammaInput;
    addColorSpaceInput(tr("RGB"), new ZelRGBColorInput(color, gamma, d_->inputStack));
    addColorSpaceInput(tr("CMYK"), new ZelCMYKColorInput(color, gamma, d_->inputStack));
    addColorSpaceInput(tr("HSV"), new ZelHSVColorInput(color, gamma, d_->inputStack));
    addColorSpaceInput(tr("Grayscale"), new ZelGrayColorInput(color, gamma, d_->inputStack));
    addColorSpaceInput(tr("CIE-L*ab"), new ZelCIELABColorInput(color, gamma, d_->inputStack));
    addColorSpaceInput(tr("Kelvin"), new ZelTemperatureColorInput(color, gamma, d_->inputStack));
    setColorInputIndex(storedIndex(d_->settings, QStringLiteral("slider"), int(d_->inputs.size())));
    connect(d_->colorSpaceCombo, &QComboBox::activated, d_->inputStack,
            &QStackedWidget::setCurrentIndex);
    connect(d_->colorSpaceCombo, &QComboBox::activated, this, &ZelColorDialog::saveSettings);

    auto *row = new QHBoxLayout;
    row->addWidget(labelFor(d_->colorSpaceCombo, tr("Color Space")));
    row->addStretch();
    row->addWidget(d_->colorSpaceCombo);
    auto *column = new QVBoxLayout;
    column->addLayout(row);
    column->addWidget(d_->inputStack);
    return column;
}

void ZelColorDialog::addColorSpaceInput(const QString &name, ZelColorInput *input)
{
    input->setAccessibleName(name);
    d_->colorSpaceCombo->addItem(name);
    d_->inputStack->addWidget(input);
    d_->inputs.append(input);
    connect(input, &ZelColorInput::colorChanged, this, &ZelColorDialog::setColor);
    connect(this, &ZelColorDialog::gammaDisplayChanged, input, &ZelColorInput::updateGammaDisplay);
}

void ZelColorDialog::setupTransparency()
{
    d_->transparencySlider =
        new ZelIntegerSliderEdit(tr("Transparency"), 0, 100, &d_->transparency, 0, 100);
    d_->transparencySlider->setParent(this);
    d_->transparencySlider->setSuffix(QStringLiteral("%"));
    d_->transparencySlider->hide();
    connect(d_->transparencySlider, &ZelIntegerSliderEdit::valueUpdated, this,
            &ZelColorDialog::transparencyChanged);
    connect(d_->transparencySlider, &ZelIntegerSliderEdit::returnPressed, this,
            &ZelColorDialog::transparencyChanged);
}

QLayout *ZelColorDialog::setupColorSwatchList()
{
    d_->swatchList = new ZelColorSwatchListView(this);
    d_->swatchList->setAccessibleName(tr("Color Swatches"));
    auto *list = new ZelListWithAddition(tr("Color Swatches"),
                                         tr("Add picked color to swatch list"), d_->swatchList);
    connect(list, qOverload<>(&ZelListWithAddition::addItem), this,
            &ZelColorDialog::addColorSwatch);
    connect(d_->swatchList, &ZelColorSwatchListView::colorChanged, this, &ZelColorDialog::setColor);
    connect(d_->swatchList, &ZelColorSwatchListView::doubleClick, this,
            &ZelColorDialog::doubleClick);
    return list;
}

QWidget *ZelColorDialog::setupButtonBox()
{
    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    setRank(box->button(QDialogButtonBox::Ok), QStringLiteral("Primary"));
    setRank(box->button(QDialogButtonBox::Cancel), QStringLiteral("Tertiary"));
    connect(box, &QDialogButtonBox::accepted, this, &ZelColorDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &ZelColorDialog::reject);
    return box;
}

void ZelColorDialog::setFocusPolicies()
{
    for (QLineEdit *edit : findChildren<QLineEdit *>())
        edit->setFocusPolicy(Qt::StrongFocus);
    for (QSlider *slider : findChildren<QSlider *>())
        slider->setFocusPolicy(Qt::ClickFocus);
}
