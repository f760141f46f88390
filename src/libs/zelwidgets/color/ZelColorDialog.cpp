#include "color/ZelColorDialog.h"

#include "ZelStoredValue.h"
#include "color/ZelColorDialogPlacement.h"
#include "color/ZelColorDialogPrivate.h"
#include "color/ZelColorHex.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/HexValueLineEdit>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSwatchListView>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelEyeDropper>
#include <ZelWidgets/ZelIntegerSliderEdit>
#include <ZelWidgets/ZelMessageBox>
#include <ZelWidgets/ZelMultiColorTreeView>
#include <ZelWidgets/ZelSpectrumDisplay>
#include <ZelWidgets/ZelToolButton>
#include <ZelWidgets/ZelWindowPlacement>

#include <QAction>
#include <QActionGroup>
#include <QDebug>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <cmath>

namespace {

constexpr int kelvinIndex = 5;

} // namespace

ZelColorDialog::ZelColorDialog(const QPoint &position, const zelsg::Color &color, QString name,
                               ILibrary *library)
    : d_(std::make_unique<ZelColorDialogPrivate>())
{
    d_->preferredPosition = position;
    init(color, std::move(name), library);
}

ZelColorDialog::ZelColorDialog(QWidget *parent, const zelsg::Color &color, QString name,
                               ILibrary *library)
    : QDialog(parent)
    , d_(std::make_unique<ZelColorDialogPrivate>())
{
    init(color, std::move(name), library);
}

ZelColorDialog::~ZelColorDialog()
{
    takeApart();
}

void ZelColorDialog::takeApart()
{
    // Fields finish their editing while the window goes; nobody is there to hear of it.
    const QSignalBlocker blocker(this);
    for (QObject *child : findChildren<QObject *>())
        child->disconnect(this);
    if (isVisible())
        setVisible(false);
    delete d_->multiColorTree;
    delete d_->transparencySlider;
}

zelsg::Color ZelColorDialog::getColor()
{
    d_->color.setColorName(getColorName().toStdString());
    return d_->color.detachedClone();
}

QString ZelColorDialog::getColorName() const
{
    return d_->nameEdit->text().simplified();
}

QColor ZelColorDialog::getQColor() const
{
    QColor color = toQColor(d_->color.getActive());
    if (d_->transparency != 0)
        color.setAlphaF(1.0F - float(d_->transparency) * 0.01F);
    return color;
}

void ZelColorDialog::setColor(const ZelColor &c)
{
    const ZelColor former = d_->color.getActive();
    if (c == former)
        return;
    const std::string name = d_->color.getColorName();
    d_->color.setColor(c, zelsg::NameOp::Take);
    showNewName(name);
    {
        const QSignalBlocker blocker(this);
        showColor(c, sender());
    }
    if (toQColor(c) != toQColor(former))
        emitColorChanged(d_->color, false);
}

void ZelColorDialog::subColorsChanged(const ZelColor &c)
{
    showColor(c);
    setMultiColorUI();
    emitColorChanged(d_->color, false);
}

void ZelColorDialog::setActiveColorNoSignal(const ZelColor &color)
{
    if (color == d_->color.getActive())
        return;
    const QSignalBlocker blocker(this);
    d_->color.setColor(color, zelsg::NameOp::Keep);
    showColor(color);
    if (d_->color.isMultiColor())
        d_->multiColorTree->reload();
}

void ZelColorDialog::setColorNoSignal(const zelsg::Color &color)
{
    if (d_->color == color)
        return;
    const QSignalBlocker blocker(this);
    d_->color = color.detachedClone();
    showColor(d_->color.getActive());
    setMultiColorUI();
}

void ZelColorDialog::setInitialColor(const zelsg::Color &color)
{
    d_->initialColor = color.detachedClone();
    d_->viewer->setOldColor(d_->initialColor.getActive());
}

void ZelColorDialog::showColor(const ZelColor &color, const QObject *except)
{
    d_->viewer->setColor(color);
    for (ZelSpectrumDisplay *display : std::as_const(d_->spectra)) {
        if (display != except)
            display->setColor(color);
    }
    for (ZelColorInput *input : std::as_const(d_->inputs)) {
        if (input != except)
            input->setColor(color);
    }
    updateHex(color);
}

void ZelColorDialog::showNewName(const std::string &former)
{
    const std::string name = d_->color.getColorName();
    if (name == former)
        return;
    const QSignalBlocker blocker(d_->nameEdit);
    d_->nameEdit->setText(QString::fromStdString(name));
}

void ZelColorDialog::nameChanged(const QString &name)
{
    d_->color.setColorName(name.toStdString());
    emitColorChanged(d_->color, false);
}

void ZelColorDialog::emitColorChanged(const zelsg::Color &color, bool cancelled)
{
    if (d_->color.isMultiColor())
        d_->multiColorTree->onColorChanged(d_->color, cancelled);
    Q_EMIT colorChanged(color.detachedClone(), cancelled);
}

void ZelColorDialog::updateHex(const ZelColor &color)
{
    d_->shownHex =
        ZelColorHex::write(d_->gammaInput ? ZelGammaPolicy::get()->gammaCorrect(color) : color);
    if (d_->hexEdit->text() != d_->shownHex)
        d_->hexEdit->setText(d_->shownHex);
    d_->hexEdit->setModified(false);
}

void ZelColorDialog::hexValueEdited()
{
    // The digits are coarser than the colour: passing through the field doesn't round it.
    if (!d_->hexEdit->isModified() && d_->hexEdit->text() == d_->shownHex)
        return;
    takeDisplayColor(ZelColorHex::read(d_->hexEdit->text()));
}

void ZelColorDialog::takeDisplayColor(const ZelColor &color)
{
    const QPointer<ZelColorDialog> alive(this);
    setColor(ZelGammaPolicy::get()->inverseGammaCorrect(color));
    // Digits that stand for the present colour have yet to be written out.
    if (alive)
        updateHex(d_->color.getActive());
}

void ZelColorDialog::setTransparency(float value)
{
    if (!std::isfinite(value)) {
        qWarning() << "The transparency isn't a number" << objectName();
        return;
    }
    d_->transparency = 100 - qRound(qBound(0.0F, value, 1.0F) * 100);
    if (d_->transparencySlider->isHidden())
        d_->transparencySlider->show();
    d_->transparencySlider->updateValue();
}

void ZelColorDialog::transparencyChanged()
{
    emitColorChanged(d_->color, false);
}

void ZelColorDialog::setColorInputIndex(int index)
{
    if (index < 0 || index >= d_->inputs.size())
        return;
    d_->colorSpaceCombo->setCurrentIndex(index);
    d_->inputStack->setCurrentIndex(index);
}

void ZelColorDialog::showKelvinAsDefaultColorInput(bool show)
{
    if (show)
        setColorInputIndex(kelvinIndex);
}

void ZelColorDialog::saveSettings()
{
    if (sender() == d_->colorSpaceCombo)
        d_->settings.setValue(QStringLiteral("slider"), d_->colorSpaceCombo->currentIndex());
}

void ZelColorDialog::hueColorFieldClicked()
{
    activateColorSpectrum(0);
}

void ZelColorDialog::triadicColorWheelClicked()
{
    activateColorSpectrum(1);
}

void ZelColorDialog::activateColorSpectrum(int index)
{
    d_->spectrumIndex = index;
    d_->spectrumStack->setCurrentIndex(index);
    d_->settings.setValue(QStringLiteral("spectrum"), index);
}

void ZelColorDialog::updateSliderGamma(bool b)
{
    d_->colorSettings.setValue(QStringLiteral("enable_gamma_correction_input"), b);
    if (ZelGammaPolicy::get()->areValuesGammaCorrected() == b)
        gammaCorrectValuesChanged(b); // It went its own way before, and is silent now.
    else
        ZelGammaPolicy::get()->setGammaCorrectValues(b);
}

void ZelColorDialog::updateDisplayGamma(bool b)
{
    d_->colorSettings.setValue(QStringLiteral("enable_gamma_correction"), b);
    ZelGammaPolicy::get()->setEnableGammaCorrection(b);
}

void ZelColorDialog::gammaCorrectValuesChanged(bool b)
{
    d_->gammaInputAction->setChecked(b);
    Q_EMIT gammaDisplayChanged(b);
}

void ZelColorDialog::gammaCorrectChanged(bool b)
{
    d_->gammaDisplayAction->setChecked(b);
    update();
    for (QWidget *child : findChildren<QWidget *>())
        child->update();
}

void ZelColorDialog::pickMode()
{
    const QPointer<ZelColorDialog> alive(this);
    const ZelColor kept = d_->color.getActive();
    QPointer<ZelEyeDropper> dropper = new ZelEyeDropper(this);
    connect(dropper, &ZelEyeDropper::colorSelected, this, &ZelColorDialog::setActiveColorNoSignal);
    const int result = dropper->exec();
    if (!alive)
        return;
    if (result == Accepted)
        emitColorChanged(d_->color, false);
    else
        setActiveColorNoSignal(kept);
    if (dropper)
        dropper->deleteLater();
}

void ZelColorDialog::toggleMultiColor()
{
    const std::string name = d_->color.getColorName();
    if (d_->color.isMultiColor())
        d_->color.clearMultiColors();
    else
        d_->color.setMultiColor(true);
    setMultiColorUI();
    d_->multiColorTree->reload();
    d_->multiColorTree->select(0);
    showNewName(name);
    subColorsChanged(d_->color.getActive());
}

void ZelColorDialog::setMultiColorUI()
{
    const bool isMulti = d_->color.isMultiColor();
    d_->multiColorButton->setChecked(isMulti);
    d_->multiColorButton->setToolTip(isMulti ? tr("Unmake multi-color") : tr("Make multi-color"));
    if (isMulti)
        shareWithTree();
    d_->multiColorFrame->setVisible(isMulti);
}

void ZelColorDialog::shareWithTree()
{
    // Done for lists only: it costs much of the time that the dialog takes to open.
    if (!d_->multiColorTree->color().isSharedWith(d_->color))
        d_->multiColorTree->setColor(d_->color);
}

void ZelColorDialog::addSubColorToMultiColor()
{
    shareWithTree();
    d_->multiColorTree->addColor(d_->color.getActive());
}

void ZelColorDialog::addColorSwatch()
{
    d_->swatchList->addColor(d_->color.getActive());
}

void ZelColorDialog::saveToLibrary()
{
    const QString name = getColorName();
    if (name.isEmpty()) {
        ZelMessageBox::warning(this, tr("Add Color"), tr("Color name is not allowed to be empty"));
        return;
    }
    d_->color.setColorName(name.toStdString());
    Q_EMIT saveColorToLibrary(d_->color.detachedClone());
}

void ZelColorDialog::checkEmptyNameAtOk(bool check)
{
    d_->checkEmptyName = check;
}

void ZelColorDialog::hideNameEdit()
{
    d_->nameLabel->hide();
    d_->nameEdit->hide();
}

void ZelColorDialog::hideOldNewSelector()
{
    d_->viewer->hide();
}

void ZelColorDialog::showMakeMultiColorButton()
{
    d_->multiColorButton->show();
}

void ZelColorDialog::showSaveToLibraryButton()
{
    d_->saveToLibraryButton->show();
}

void ZelColorDialog::setFocusOnNameEdit()
{
    d_->nameEdit->setFocus(Qt::OtherFocusReason);
}

void ZelColorDialog::doubleClick(const ZelColor &color)
{
    const QPointer<ZelColorDialog> alive(this);
    setColor(color);
    if (alive)
        accept();
}

void ZelColorDialog::accept()
{
    d_->initialColor = d_->color.detachedClone();
    if (!d_->checkEmptyName || !getColorName().isEmpty()) {
        done(Accepted);
        return;
    }
    const QPointer<ZelColorDialog> alive(this);
    ZelMessageBox::warning(this, tr("Color Name"), tr("Please specify a color name"),
                           QMessageBox::Ok);
    if (alive)
        d_->nameEdit->setFocus();
}

void ZelColorDialog::reject()
{
    const QPointer<ZelColorDialog> alive(this);
    if (d_->color != d_->initialColor)
        emitColorChanged(d_->initialColor, true);
    if (alive)
        done(Rejected);
}

void ZelColorDialog::setVisible(bool visible)
{
    // As a part of another window it has neither place nor size of its own.
    if (visible && isHidden() && d_->firstShow && isWindow()) {
        beforeShowFirstTime();
        d_->firstShow = false;
    } else if (!visible && isVisible() && isWindow()) {
        beforeHide();
    }
    if (visible && isHidden())
        updatePickButton();
    QDialog::setVisible(visible);
}

void ZelColorDialog::beforeHide()
{
    const auto density = ZelColorDialogPlacement::densityOf(screen());
    d_->settings.setValue(QStringLiteral("inchSize"),
                          ZelColorDialogPlacement::toInches(size(), density));
}

QSize ZelColorDialog::sizeInUnitsFromStoredSize(const QScreen *screen)
{
    ensurePolished();
    const QSizeF inches = storedValue(d_->settings, QStringLiteral("inchSize"), QSizeF());
    const QSize area = screen ? screen->availableSize() : QSize();
    return ZelColorDialogPlacement::windowSize(inches, ZelColorDialogPlacement::densityOf(screen),
                                               sizeHint(), area);
}

void ZelColorDialog::beforeShowFirstTime()
{
    QPoint place = d_->preferredPosition;
    const QScreen *target = screen();
    if (!place.isNull()) {
        move(place);
        if (const QScreen *there = QGuiApplication::screenAt(place))
            target = there;
    } else if (const QWidget *parent = parentWidget()) {
        place = parent->mapToGlobal(parent->rect().bottomLeft());
        target = parent->screen();
    }
    const QSize size = sizeInUnitsFromStoredSize(target);
    setGeometry(QRect(place, size));
    place = ZelColorDialogPlacement::keptOn(target ? target->availableGeometry() : QRect(),
                                            QRect(place, size));
    if (!place.isNull())
        move(place);
}
