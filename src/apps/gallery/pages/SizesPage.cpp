#include "SizesPage.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/ZelCoordinateEdit>
#include <ZelWidgets/ZelSizeEdit>

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int fieldWidth = 18;

} // namespace

SizesPage::SizesPage(QWidget *parent)
    : GalleryPage(parent)
{
    addSizes();
    addPositions();
    addStretch();
}

void SizesPage::addSizes()
{
    QVBoxLayout *section = addSection(
        tr("Sizes"), tr("The chain locks the aspect: then one side follows the other. The sliders "
                        "of both sides share one range, which follows the numbers."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(32);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    section->addLayout(grid);
    auto *units = new ZelUnitManager(this);
    units->setDisplayUnit(Quantity::Length, Unit::Centimeter);
    const QStringList names{tr("Free"), tr("Locked, in centimetres"), tr("Size alone"),
                            tr("Disabled")};
    for (int i = 0; i < names.size(); ++i) {
        auto *size = new ZelSizeEdit(this);
        size->setAccessibleName(names[i]);
        size->setSize(4, 3);
        size->setDefaultAspect(0.75);
        size->setAspectLocked(i == 1);
        if (i == 1) {
            size->setQuantity(Quantity::Length);
            size->setUnit(units);
        }
        size->setShowSizeOnly(i == 2);
        size->setEnabled(i != 3);
        watch(size, &ZelSizeEdit::sizeChanged, QStringLiteral("sizeChanged"));
        watch(size, &ZelSizeEdit::aspectLockChanged, QStringLiteral("aspectLockChanged"));
        auto *cell = new QVBoxLayout;
        auto *caption = new QLabel(names[i], this);
        caption->setProperty("heading", true);
        cell->addWidget(caption);
        cell->addWidget(size);
        cell->addStretch();
        grid->addLayout(cell, i / 2, i % 2);
    }
}

void SizesPage::addPositions()
{
    QVBoxLayout *section = addSection(
        tr("Positions"),
        tr("Degrees with N or S, then degrees with E or W. Blanks are free and letters may be "
           "small. A text that is no position turns red and is not taken; Escape brings the last "
           "position back."));
    auto *form = new QFormLayout;
    section->addLayout(form);
    addPosition(form, tr("North and east"), 48.1372F, 11.5755F);
    addPosition(form, tr("South and west"), -33.4489F, -70.6693F);
    addPosition(form, tr("Far east"), 0.5F, 179.999F);
    addPosition(form, tr("No position"), 0, 0);
    auto *wrong = findChildren<ZelCoordinateEdit *>().constLast();
    wrong->setText(QStringLiteral("91 N 0 E"));
    QMetaObject::invokeMethod(wrong, "onTextEdit", Q_ARG(QString, wrong->text()));
    addPosition(form, tr("Disabled"), 1, 1);
    findChildren<ZelCoordinateEdit *>().constLast()->setEnabled(false);
}

void SizesPage::addPosition(QFormLayout *form, const QString &name, float latitude, float longitude)
{
    auto *edit = new ZelCoordinateEdit(this);
    edit->setAccessibleName(name);
    edit->setCoordinates(latitude, longitude);
    edit->setMinimumWidth(fieldWidth * fontMetrics().horizontalAdvance(QLatin1Char('M')));
    form->addRow(name, edit);
    watch(edit, &ZelCoordinateEdit::valueUpdated, QStringLiteral("valueUpdated"));
}
