// Lists of ten thousand thumbnails and a tree of rows with three icons, beside the same lists of
// plain Qt: laid out after a resize and after a zoom step, scrolled and painted; then the picture
// of a drag of a thousand items.

#include "BenchmarkRun.h"
#include "lists/ZelItemDrag.h"

#include <ZelWidgets/ZelIconListItemDelegate>
#include <ZelWidgets/ZelIconListWidget>
#include <ZelWidgets/ZelIconListWidgetAdapter>
#include <ZelWidgets/ZelTreeItemDelegate>
#include <ZelWidgets/ZelTreeView>

#include <QApplication>
#include <QListWidget>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <memory>

namespace {

constexpr int items = 10000;
constexpr int dragged = 1000;
constexpr int rows = 5000;
constexpr int iconSide = 96;
constexpr int roles = 3;

class Adapter : public ZelIconListWidgetAdapter
{
public:
    void copyItem(QListWidgetItem *) override {}
    void openItem(QListWidgetItem *) override {}
    void showToolTip(QListWidgetItem *) override {}
    void hideToolTip() override {}
    QBitmap *dragMask(QListWidgetItem *, QSize const &, double) override { return nullptr; }
};

enum Which { Ours, Uniform, Measured };

/// A picture of its own for each of a hundred items.
QIcon thumbnail(int number)
{
    static QList<QIcon> icons;
    while (icons.size() < 100) {
        QPixmap pixmap(256, 256);
        pixmap.fill(QColor::fromHsv(int(icons.size()) * 3, 180, 200));
        icons << pixmap;
    }
    return icons[number % icons.size()];
}

void fill(QListWidget *list)
{
    list->setSortingEnabled(false);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setIconSize(QSize(iconSide, iconSide));
    for (int number = 0; number < items; ++number)
        list->addItem(
            new QListWidgetItem(thumbnail(number), QStringLiteral("Material %1").arg(number, 5)));
    list->setGeometry(0, 0, 900, 700);
    list->show();
    list->grab();
}

std::unique_ptr<QListWidget> makeList(int which)
{
    static Adapter adapter;
    std::unique_ptr<QListWidget> list;
    if (which == Ours) {
        list = std::make_unique<ZelIconListWidget>(nullptr, &adapter);
    } else {
        list = std::make_unique<QListWidget>();
        list->setViewMode(QListView::IconMode);
        list->setResizeMode(QListView::Adjust);
        list->setWordWrap(true);
        list->setMovement(QListView::Snap);
        list->setUniformItemSizes(which == Uniform);
    }
    fill(list.get());
    return list;
}

/// A layout is finished when the place of the last item is known.
void layOut(QListWidget *list)
{
    benchmark::DoNotOptimize(list->visualItemRect(list->item(items - 1)));
}

void resize(benchmark::State &state)
{
    const auto list = makeList(int(state.range(0)));
    bool isWide = false;
    for (auto _ : state) {
        isWide = !isWide;
        list->setGeometry(0, 0, isWide ? 1100 : 900, 700);
        list->doItemsLayout();
        layOut(list.get());
    }
}

void zoomStep(benchmark::State &state)
{
    const auto list = makeList(int(state.range(0)));
    int side = iconSide;
    for (auto _ : state) {
        side = side < 160 ? side + 8 : 64;
        list->setIconSize(QSize(side, side));
        list->doItemsLayout();
        layOut(list.get());
    }
}

void scrollAndPaint(benchmark::State &state)
{
    const auto list = makeList(int(state.range(0)));
    QPixmap canvas(list->viewport()->size());
    QScrollBar *bar = list->verticalScrollBar();
    for (auto _ : state) {
        bar->setValue(bar->value() < bar->maximum() ? bar->value() + 120 : 0);
        list->viewport()->render(&canvas);
    }
}

class ThreeIcons : public ZelTreeItemDelegate
{
public:
    explicit ThreeIcons(QAbstractItemView *view)
        : ZelTreeItemDelegate(view)
    {
        for (int at = 0; at < roles; ++at)
            addIcon({thumbnail(at), Qt::UserRole + at, true, true, thumbnail(at + roles)});
    }
    bool iconClicked(std::size_t, QModelIndex const &) override { return true; }
};

/// The plain way to the same picture: the icons of the roles are painted behind the row's text.
class PlainIcons : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        QRect place(option.rect.right() - 14, option.rect.center().y() - 5, 12, 12);
        for (int at = 0; at < roles; ++at) {
            const bool isOn = index.data(Qt::UserRole + at).toBool();
            thumbnail(isOn ? at + roles : at).paint(painter, place);
            place.translate(-15, 0);
        }
    }
};

enum Delegate { OurIcons, IconsByHand, NoIcons };

void paintTree(benchmark::State &state)
{
    QStandardItemModel model(rows, 1);
    for (int row = 0; row < rows; ++row) {
        auto *item = new QStandardItem(thumbnail(row), QStringLiteral("Object %1").arg(row));
        for (int at = 0; at < roles; ++at)
            item->setData((row + at) % 2 == 0, Qt::UserRole + at);
        model.setItem(row, item);
    }
    ZelTreeView view;
    view.setModel(&model);
    if (state.range(0) == OurIcons)
        view.setItemDelegate(new ThreeIcons(&view));
    else if (state.range(0) == IconsByHand)
        view.setItemDelegate(new PlainIcons(&view));
    view.setGeometry(0, 0, 400, 700);
    view.show();
    view.grab();
    QPixmap canvas(view.viewport()->size());
    QScrollBar *bar = view.verticalScrollBar();
    for (auto _ : state) {
        bar->setValue(bar->value() < bar->maximum() ? bar->value() + 1 : 0);
        view.viewport()->render(&canvas);
    }
}

/// A list with data of its own for what is dragged, as applications have, or with those of Qt,
/// which hold every picture.
class DragList : public ZelIconListWidget
{
public:
    DragList(ZelIconListWidgetAdapter *adapter, bool hasOwnData)
        : ZelIconListWidget(nullptr, adapter)
        , hasOwnData_(hasOwnData)
    {}

    QMimeData *dataOf(const QList<QListWidgetItem *> &list) const { return mimeData(list); }

protected:
    QMimeData *mimeData(const QList<QListWidgetItem *> &list) const override
    {
        if (!hasOwnData_)
            return ZelIconListWidget::mimeData(list);
        QStringList names;
        for (const QListWidgetItem *item : list)
            names << item->text();
        auto *data = new QMimeData;
        data->setText(names.join(u'\n'));
        return data;
    }

private:
    bool hasOwnData_;
};

/// What the start of a drag makes of the selection: the items, their data and their picture.
void startOfDrag(benchmark::State &state)
{
    Adapter adapter;
    DragList list(&adapter, state.range(0) != 0);
    fill(&list);
    for (int number = 0; number < dragged; ++number)
        list.item(number)->setSelected(true);
    for (auto _ : state) {
        const QList<QListWidgetItem *> selected = list.selectedItems();
        const std::unique_ptr<QMimeData> data(list.dataOf(selected));
        benchmark::DoNotOptimize(ZelItemDrag::picture(selected.size(), 2.0, [&](qsizetype at) {
            return selected[at]->icon().pixmap(ZelItemDrag::pictureSize, 2.0);
        }));
        if (selected.size() != dragged || !data)
            state.SkipWithError("not what was selected");
    }
}

/// The picture alone.
void dragPictureAlone(benchmark::State &state)
{
    const auto list = makeList(Ours);
    for (int number = 0; number < dragged; ++number)
        list->item(number)->setSelected(true);
    const QModelIndexList selected = list->selectionModel()->selectedIndexes();
    for (auto _ : state)
        benchmark::DoNotOptimize(ZelItemDrag::pictureOf(selected, Qt::DecorationRole, 2.0));
}

BENCHMARK(resize)->Arg(Ours)->Arg(Uniform)->Arg(Measured)->Unit(benchmark::kMillisecond);
BENCHMARK(zoomStep)->Arg(Ours)->Arg(Uniform)->Arg(Measured)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollAndPaint)->Arg(Ours)->Arg(Uniform)->Arg(Measured)->Unit(benchmark::kMillisecond);
BENCHMARK(paintTree)->Arg(OurIcons)->Arg(IconsByHand)->Arg(NoIcons)->Unit(benchmark::kMillisecond);
BENCHMARK(startOfDrag)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(dragPictureAlone)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv);
}
