#include "ColorDialogPage.h"

#include <ZelDeliveryManager/ZelFeatureFlags>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorWidget>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/toDisplayQColor>
#include <ZelWidgets/toQColor>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

/// The gallery's library of colours is the list on the page; the dialog hands a pointer to it on.
class ILibrary
{
};

namespace {

constexpr QSize fieldSize(64, 24);
constexpr int inPlaceWidth = 320;

ILibrary galleryLibrary;

zelsg::Color several()
{
    zelsg::Color color(0.75F, 0.2F, 0.15F);
    color.setName("Base coat", 0);
    color.setMultiColor(true);
    ZelColor flakes(ZelColor::Space::RGB, 0.9F, 0.75F, 0.5F);
    flakes.setName("Flakes");
    color.appendColor(flakes);
    ZelColor clear(ZelColor::Space::HSV, 210, 0.2F, 0.95F);
    clear.setName("Clear coat");
    color.appendColor(clear);
    return color;
}

QString described(const zelsg::Color &color)
{
    QString text = toQColor(color.getActive()).name();
    if (color.isMultiColor())
        text += ColorDialogPage::tr(", %1 of %2").arg(color.activeIndex() + 1).arg(color.nColors());
    const QString name = QString::fromStdString(color.getColorName());
    return name.isEmpty() ? text : text + QStringLiteral(", \"") + name + u'"';
}

} // namespace

ColorDialogPage::ColorDialogPage(QWidget *parent)
    : GalleryPage(parent)
    , library_(new QListWidget(this))
{
    orv::cdm::setFeatureOverride("multi_colors", true);
    addOwners();
    addInPlace();
    addStretch();
}

void ColorDialogPage::addOwners()
{
    QVBoxLayout *section = addSection(
        tr("Owners and their dialogs"),
        tr("Each owner follows its dialog live; Cancel gives the first colour back. The log tells "
           "what it hears."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    row->addLayout(grid);
    addOwner(grid, {0.2F, 0.45F, 0.7F}, {tr("One colour"), [](ZelColorDialog *) {
                                         }});
    addOwner(grid, several(), {tr("Sub-colours"), [](ZelColorDialog *dialog) {
                                   dialog->showMakeMultiColorButton();
                                   dialog->showSaveToLibraryButton();
                               }});
    addOwner(grid, {0.1F, 0.6F, 0.3F}, {tr("With alpha"), [](ZelColorDialog *dialog) {
                                            dialog->setTransparency(0.6F);
                                        }});
    addOwner(grid, {0.8F, 0.6F, 0.2F}, {tr("With library"), [](ZelColorDialog *dialog) {
                                            dialog->showSaveToLibraryButton();
                                            dialog->checkEmptyNameAtOk(true);
                                            dialog->setFocusOnNameEdit();
                                        }});
    addOwner(grid, {1, 0.85F, 0.7F}, {tr("Light, in kelvin"), [](ZelColorDialog *dialog) {
                                          dialog->showKelvinAsDefaultColorInput(true);
                                          dialog->hideNameEdit();
                                      }});
    addOwner(grid, {0.5F, 0.5F, 0.5F},
             {tr("Modal"), [](ZelColorDialog *dialog) { dialog->hideOldNewSelector(); }, true});
    auto *column = new QVBoxLayout;
    column->setSpacing(grid->verticalSpacing());
    row->addLayout(column);
    auto *caption = new QLabel(tr("&Library"), this);
    caption->setBuddy(library_);
    column->addWidget(caption);
    column->addWidget(library_);
    library_->setAccessibleName(tr("Library"));
    store(several());
    row->addStretch();
}

void ColorDialogPage::addOwner(QGridLayout *grid, const zelsg::Color &color, Owner owner)
{
    const int index = int(owners_.size());
    owner.field = new ZelColorWidget(color, fieldSize, false, this);
    owner.field->setToolTip(owner.name);
    auto *button = new ZelPushButton(owner.name + QStringLiteral("..."), this);
    connect(button, &QPushButton::clicked, this, [this, index] { open(index); });
    grid->addWidget(owner.field, index, 0);
    grid->addWidget(button, index, 1);
    owners_.append(owner);
}

void ColorDialogPage::open(int index)
{
    Owner &owner = owners_[index];
    if (owner.dialog) {
        owner.dialog->show();
        owner.dialog->raise();
        owner.dialog->activateWindow();
        return;
    }
    owner.dialog =
        new ZelColorDialog(owner.field, owner.field->getColor(), owner.name, &galleryLibrary);
    owner.dialog->setAttribute(Qt::WA_DeleteOnClose);
    owner.dialog->setModal(owner.isModal);
    owner.prepare(owner.dialog);
    watchDialog(owner.dialog, owner.name);
    connect(owner.dialog, &ZelColorDialog::colorChanged, owner.field,
            [field = owner.field](const zelsg::Color &color) { field->setColor(color); });
    owner.dialog->show();
}

void ColorDialogPage::watchDialog(ZelColorDialog *dialog, const QString &name)
{
    connect(dialog, &ZelColorDialog::colorChanged, this,
            [this, dialog, name](const zelsg::Color &color, bool isCancelled) {
                const int alpha = qRound(dialog->getQColor().alphaF() * 100);
                log(name + QStringLiteral(": colorChanged(") + described(color) +
                    (alpha < 100 ? QStringLiteral(", %1 %").arg(alpha) : QString()) +
                    (isCancelled ? QStringLiteral("; cancelled)") : QStringLiteral(")")));
            });
    connect(dialog, &ZelColorDialog::saveColorToLibrary, this,
            [this, name](const zelsg::Color &color) {
                log(name + QStringLiteral(": saveColorToLibrary(") + described(color) + u')');
                store(color);
            });
    connect(dialog, &ZelColorDialog::gammaDisplayChanged, this, [this, name](bool useGamma) {
        log(name + QStringLiteral(": gammaDisplayChanged(") +
            (useGamma ? QStringLiteral("true)") : QStringLiteral("false)")));
    });
    connect(dialog, &QDialog::finished, this, [this, name](int result) {
        log(name + (result == QDialog::Accepted ? QStringLiteral(": accepted")
                                                : QStringLiteral(": rejected")));
    });
}

void ColorDialogPage::store(const zelsg::Color &color)
{
    QPixmap pixmap(library_->iconSize().isValid() ? library_->iconSize() : QSize(16, 16));
    pixmap.fill(toDisplayQColor(color.getActive()));
    const QString name = QString::fromStdString(color.getColorName());
    library_->addItem(new QListWidgetItem(pixmap, name.isEmpty() ? tr("Without a name") : name));
}

void ColorDialogPage::addInPlace()
{
    QVBoxLayout *section = addSection(
        tr("As a part of the page"),
        tr("The same dialog without a window of its own: with sub-colours and alpha on the left, "
           "plain on the right. OK and Cancel leave it where it is."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    for (const bool isPlain : {false, true}) {
        const QString name = isPlain ? tr("Plain") : tr("Varnish");
        auto *dialog = new ZelColorDialog(
            this, isPlain ? zelsg::Color(0.2F, 0.45F, 0.7F) : several(), name, &galleryLibrary);
        dialog->setWindowFlags(Qt::Widget);
        dialog->setFixedWidth(inPlaceWidth);
        if (!isPlain) {
            dialog->showMakeMultiColorButton();
            dialog->showSaveToLibraryButton();
            dialog->setTransparency(0.75F);
        }
        watchDialog(dialog, name);
        connect(dialog, &QDialog::finished, dialog, &QWidget::show);
        row->addWidget(dialog, 0, Qt::AlignTop);
    }
    row->addStretch();
}
