#include "IconListPage.h"

#include "MaterialLibrary.h"
#include "MaterialList.h"

#include <ZelWidgets/EnsureTwoIconsOnSliderMax>
#include <ZelWidgets/ZelListView>
#include <ZelWidgets/ZelListWidget>
#include <ZelWidgets/ZelRemoveIconProxyModel>
#include <ZelWidgets/ZelZoomAnchor>

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QRadioButton>
#include <QSlider>
#include <QToolTip>
#include <QVBoxLayout>

#include <numeric>

namespace {

constexpr int leastIcon = 24;
constexpr int mostIcon = 512;
constexpr int firstIcon = 96;
constexpr int listModeIcon = 32;
constexpr int collectionIcon = 88;
constexpr int iconStep = 8;
constexpr int notch = 120;
constexpr int browserHeight = 380;
constexpr int otherHeight = 170;
constexpr int collectionWidth = 224;
constexpr int mostFormats = 20;

QVBoxLayout *titled(const QString &title, QWidget *widget)
{
    auto *column = new QVBoxLayout;
    auto *label = new QLabel(title);
    label->setBuddy(widget);
    column->addWidget(label);
    column->addWidget(widget, 1);
    return column;
}

} // namespace

IconListPage::IconListPage(QWidget *parent)
    : GalleryPage(parent)
    , library_(new MaterialList(tr("Library"), this))
    , collection_(new MaterialList(tr("Collection"), this))
    , sizes_(new QSlider(Qt::Horizontal, this))
{
    addBrowser();
    addOtherLists();
}

void IconListPage::addBrowser()
{
    QVBoxLayout *section = addSection(
        tr("Library of %L1 materials").arg(MaterialLibrary::size),
        tr("Ctrl and the wheel, Ctrl+Plus and Ctrl+Minus zoom. A click on a selected material "
           "renames it, Ctrl+C or a Shift+click copies it, Return or a double click opens it. Drag "
           "materials into the collection, or files from a file manager."));
    QList<int> numbers(MaterialLibrary::size);
    std::iota(numbers.begin(), numbers.end(), 0);
    library_->setIconSize(QSize(firstIcon, firstIcon));
    library_->addMaterials(numbers);
    collection_->setIconSize(QSize(collectionIcon, collectionIcon));
    collection_->addMaterials({4, 7, 11, 19, 24, 34});
    section->addWidget(toolRow());
    for (MaterialList *list : {library_, collection_}) {
        list->setMinimumHeight(browserHeight);
        connect(list, &MaterialList::said, this, &IconListPage::log);
        connect(list, &QListWidget::itemChanged, this, [this](const QListWidgetItem *item) {
            log(tr("Renamed to %1").arg(item->text()));
        });
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(titled(tr("&Kinds"), kindList()));
    row->addLayout(titled(tr("&Library"), library_), 1);
    collection_->setFixedWidth(collectionWidth);
    row->addLayout(titled(tr("C&ollection"), collection_));
    section->addLayout(row);
}

QWidget *IconListPage::toolRow()
{
    auto *tools = new QWidget(this);
    auto *row = new QHBoxLayout(tools);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    auto *icons = new QRadioButton(tr("I&cons"), tools);
    auto *list = new QRadioButton(tr("Lis&t"), tools);
    icons->setChecked(true);
    connect(icons, &QRadioButton::toggled, this, [this](bool asIcons) {
        const ZelZoomAnchor anchor(library_);
        if (asIcons)
            library_->setIconMode();
        else
            library_->setListMode();
        const int side = asIcons ? sizes_->value() : listModeIcon;
        library_->setIconSize(QSize(side, side));
        sizes_->setEnabled(asIcons);
    });
    auto *label = new QLabel(tr("Si&ze"), tools);
    label->setBuddy(sizes_);
    sizes_->setAccessibleName(tr("Size of the icons"));
    sizes_->setRange(leastIcon, mostIcon);
    sizes_->setValue(firstIcon);
    sizes_->setFixedWidth(collectionWidth);
    connect(sizes_, &QSlider::valueChanged, this, [this](int side) {
        if (!sizes_->isEnabled())
            return;
        const ZelZoomAnchor anchor(library_);
        library_->setIconSize(QSize(side, side));
    });
    connect(library_, qOverload<int>(&MaterialList::resize), this, &IconListPage::zoom);
    new EnsureTwoIconsOnSliderMax(sizes_, library_);
    row->addWidget(icons);
    row->addWidget(list);
    row->addStretch(1);
    row->addWidget(label);
    row->addWidget(sizes_);
    return tools;
}

void IconListPage::zoom(int delta)
{
    sizes_->setValue(sizes_->value() + qRound(double(delta) / notch * iconStep));
}

QWidget *IconListPage::kindList()
{
    auto *kinds = new ZelListWidgetWithSizeHint(this);
    kinds->setAccessibleName(tr("Kinds"));
    kinds->addItems(MaterialLibrary::kinds());
    kinds->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(kinds, &QListWidget::currentTextChanged, library_, [this](const QString &kind) {
        const auto found = library_->findItems(kind, Qt::MatchStartsWith);
        if (!found.isEmpty())
            library_->scrollToItem(found.first(), QAbstractItemView::PositionAtTop);
    });
    return kinds;
}

// Other lists

void IconListPage::addOtherLists()
{
    QVBoxLayout *section = addSection(
        tr("Other lists"),
        tr("The collection by its names alone, without icons, and a list that takes every "
           "drop and leaves it to its owner."));
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(titled(tr("&Names of the collection"), nameList()), 1);
    row->addLayout(titled(tr("&Inbox"), inbox()), 1);
    section->addLayout(row);
}

QWidget *IconListPage::nameList()
{
    auto *names = new ZelListViewWithZoom(this);
    auto *proxy = new ZelRemoveIconProxyModel(names);
    proxy->setSourceModel(collection_->model());
    names->setModel(proxy);
    // Few names, each as wide as it is.
    names->setUniformItemSizes(false);
    names->setAccessibleName(tr("Names of the collection"));
    names->setFixedHeight(otherHeight);
    watch(names, &ZelListView::dragEnter, QStringLiteral("dragEnter"));
    watch(names, &ZelListView::dragLeave, QStringLiteral("dragLeave"));
    connect(names, qOverload<int>(&ZelListViewWithZoom::resize), this,
            [this](int delta) { log(tr("Names: resize(%1)").arg(delta)); });
    connect(names, &ZelListView::copyRequest, this, [this, names] {
        QStringList texts;
        for (const QModelIndex &index : names->selectionModel()->selectedIndexes())
            texts << index.data().toString();
        QGuiApplication::clipboard()->setText(texts.join(u'\n'));
        log(tr("%1 copied").arg(texts.join(QStringLiteral(", "))));
    });
    connect(names, &ZelListView::toolTipRequested, names, [names](const QModelIndex &index) {
        QToolTip::showText(QCursor::pos(), tr("Row %1").arg(index.row() + 1), names);
    });
    connect(names, &ZelListView::toolTipHideRequest, names, &QToolTip::hideText);
    return names;
}

QWidget *IconListPage::inbox()
{
    auto *list = new ZelListWidget(this);
    list->setAccessibleName(tr("Inbox"));
    list->setFixedHeight(otherHeight);
    connect(list, &ZelListWidget::gotDropData, list, [this, list](const QMimeData *data) {
        list->addItems(data->formats().mid(0, mostFormats));
        list->scrollToBottom();
        log(tr("Inbox: gotDropData, %1 formats").arg(data->formats().size()));
    });
    return list;
}
