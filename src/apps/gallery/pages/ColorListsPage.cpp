#include "ColorListsPage.h"

#include <ZelWidgets/ZelColorSwatchListView>
#include <ZelWidgets/ZelListWithAddition>
#include <ZelWidgets/ZelMultiColorTreeView>
#include <ZelWidgets/ZelRGBSpectrumDisplay>
#include <ZelWidgets/toQColor>

#include <QHBoxLayout>
#include <QPushButton>

namespace {

constexpr QSize fieldSize(220, 160);
constexpr int rowSpacing = 32;
constexpr int listSpacing = 4;
constexpr int treeHeight = 190;

ZelColor named(const QString &name, const char *rgb)
{
    return fromQColor(QColor(QLatin1String(rgb)), name);
}

QString described(const ZelColor &color)
{
    const QString name = QString::fromStdString(color.name());
    const QString number = toQColor(color).name();
    return name.isEmpty() ? number : number + u' ' + name;
}

} // namespace

ColorListsPage::ColorListsPage(QWidget *parent)
    : GalleryPage(parent)
    , field_(new ZelRGBSpectrumDisplay(ZelColor(), this))
    , swatches_(new ZelColorSwatchListView(this))
    , picked_(ZelColor::Space::HSV, 28, 0.75F, 0.9F)
{
    addSwatches();
    addSubColors();
    addStretch();
    field_->setColor(picked_);
}

void ColorListsPage::addSwatches()
{
    QVBoxLayout *section = addSection(
        tr("Swatches"),
        tr("Kept from one run to the next. A click takes a colour into the field, the add button "
           "brings the field's colour in; colours of the lists below and of other programs can be "
           "dropped. Delete removes what is selected; the menu of the free space imports and "
           "exports palettes."));
    auto *row = new QHBoxLayout;
    row->setSpacing(rowSpacing);
    section->addLayout(row);
    auto *list = new ZelListWithAddition(tr("Color Swatches"),
                                         tr("Add picked color to swatch list"), swatches_);
    list->setSpacing(listSpacing);
    row->addLayout(list, 1);
    field_->setFixedSize(fieldSize);
    field_->setAccessibleName(tr("Picked color"));
    row->addWidget(field_, 0, Qt::AlignTop);
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(2 * listSpacing);
    row->addLayout(buttons);
    auto *importing = new QPushButton(tr("Import..."), this);
    auto *exporting = new QPushButton(tr("Export..."), this);
    buttons->addWidget(importing);
    buttons->addWidget(exporting);
    buttons->addStretch();
    connect(importing, &QPushButton::clicked, swatches_, &ZelColorSwatchListView::importByUser);
    connect(exporting, &QPushButton::clicked, swatches_, &ZelColorSwatchListView::exportByUser);
    connect(list, qOverload<>(&ZelListWithAddition::addItem), this,
            [this] { swatches_->addColor(picked_); });
    connect(field_, &ZelSpectrumDisplay::colorChanged, this,
            [this](const ZelColor &color) { picked_ = color; });
    connect(swatches_, &ZelColorSwatchListView::colorChanged, this, [this](const ZelColor &color) {
        log(tr("Swatches: colorChanged(%1)").arg(described(color)));
        take(color);
    });
    connect(swatches_, &ZelColorSwatchListView::doubleClick, this, [this](const ZelColor &color) {
        log(tr("Swatches: doubleClick(%1)").arg(described(color)));
    });
}

void ColorListsPage::addSubColors()
{
    QVBoxLayout *section = addSection(
        tr("Sub-colours"),
        tr("The current row is the active sub-colour. Rows are dragged to another place or moved "
           "with Alt+Up and Alt+Down, names edited with F2 or a double click. A colour that is "
           "dropped on a row replaces it, between two it comes in there."));
    auto *row = new QHBoxLayout;
    row->setSpacing(rowSpacing);
    section->addLayout(row);
    zelsg::Color autumn;
    autumn.setColors(std::vector<ZelColor>{
        named(tr("Beech"), "#a8501e"), named(tr("Maple"), "#b3202a"), named(tr("Birch"), "#e0b23c"),
        named(QString(), "#5c6b2e"), named(tr("Sky after rain"), "#8fa6b8")});
    autumn.setActiveIndex(1);
    zelsg::Color metals;
    metals.setColors(std::vector<ZelColor>{named(tr("Copper"), "#b87333"),
                                           named(tr("Brass"), "#b5a642"),
                                           named(tr("Steel"), "#7b8794")});
    addTree(row, autumn, tr("Autumn"));
    addTree(row, metals, tr("Metals"));
    addTree(row, autumn.detachedClone(), tr("Locked"))->setEnabled(false);
}

ZelMultiColorTreeView *ColorListsPage::addTree(QHBoxLayout *row, const zelsg::Color &color,
                                               const QString &title)
{
    auto *tree = new ZelMultiColorTreeView(nullptr, this);
    tree->setColor(color);
    tree->setAccessibleName(title);
    tree->setFixedHeight(treeHeight);
    auto *list = new ZelListWithAddition(title, tr("Add the picked color"), tree);
    list->setSpacing(listSpacing);
    row->addLayout(list, 1);
    connect(list, qOverload<>(&ZelListWithAddition::addItem), this, [this, tree] {
        if (tree->isEnabled())
            tree->addColor(picked_);
    });
    connect(tree, &ZelMultiColorTreeView::colorChanged, this,
            [this, title](const ZelColor &active) {
                log(title + QStringLiteral(": colorChanged(") + described(active) + u')');
                take(active);
            });
    connect(tree, &ZelMultiColorTreeView::saveColorToLibrary, this,
            [this, title](const zelsg::Color &saved) {
                log(title + QStringLiteral(": saveColorToLibrary(") + described(saved.getActive()) +
                    u')');
            });
    return tree;
}

void ColorListsPage::take(const ZelColor &color)
{
    picked_ = color;
    field_->setColor(color);
}
