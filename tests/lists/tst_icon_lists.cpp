// Lists of thumbnails: cells, zoom, drops, drags, clicks, tool tips.

#include "TestCase.h"
#include "UserInput.h"
#include "lists/ZelItemDrag.h"

#include <ZelWidgets/EnsureTwoIconsOnSliderMax>
#include <ZelWidgets/ZelIconListItemDelegate>
#include <ZelWidgets/ZelIconListWidget>
#include <ZelWidgets/ZelIconListWidgetAdapter>
#include <ZelWidgets/ZelListView>
#include <ZelWidgets/ZelListWidget>
#include <ZelWidgets/ZelRemoveIconProxyModel>
#include <ZelWidgets/ZelShortcutHandler>

#include <QAbstractItemModelTester>
#include <QBitmap>
#include <QCursor>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QSlider>
#include <QStandardItemModel>

namespace {

QIcon iconOf(const QColor &color)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(color);
    return pixmap;
}

/// A model that takes drops on its rows and does something odd meanwhile.
class DropModel : public QStandardItemModel
{
public:
    DropModel(int rows, int columns)
        : QStandardItemModel(rows, columns)
    {
        for (int row = 0; row < rows; ++row)
            setItem(row, new QStandardItem(QStringLiteral("row %1").arg(row)));
    }
    std::function<void()> meanwhile;
    QList<int> rows;

    bool dropMimeData(const QMimeData *, Qt::DropAction, int, int,
                      const QModelIndex &target) override
    {
        rows.append(target.row());
        if (meanwhile)
            meanwhile();
        return true;
    }
    bool canDropMimeData(const QMimeData *, Qt::DropAction, int, int,
                         const QModelIndex &) const override
    {
        return true;
    }
    QStringList mimeTypes() const override { return {QStringLiteral("text/plain")}; }
};

class Adapter : public ZelIconListWidgetAdapter
{
public:
    QStringList calls;

    void copyItem(QListWidgetItem *item) override { add("copy", item); }
    void openItem(QListWidgetItem *item) override { add("open", item); }
    void showToolTip(QListWidgetItem *item) override { add("tip", item); }
    void hideToolTip() override { calls << QStringLiteral("hide"); }
    QBitmap *dragMask(QListWidgetItem *, QSize const &size, double) override
    {
        auto *mask = new QBitmap(size);
        mask->fill(Qt::color1);
        return mask;
    }

private:
    void add(const char *what, const QListWidgetItem *item)
    {
        calls << QLatin1String(what) + u' ' + item->text();
    }
};

bool drop(QAbstractItemView &view, const QPoint &point)
{
    QMimeData data;
    data.setText(QStringLiteral("dropped"));
    return UserInput::dropOn(view.viewport(), point, data);
}

} // namespace

class IconListsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cellsShareTheRow();
    void captionsNeedRoom();
    void twoIconsAlwaysFit();
    void theSliderFollowsTheList();
    void zoomIsAskedFor();
    void zoomKeepsItsPlace();
    void dropsGoToTheSelection_data();
    void dropsGoToTheSelection();
    void modelsMayChangeDuringADrop();
    void dragsShowAStack();
    void dragsWriteTheirItemsWhenAsked();
    void clicksCopyRenameAndOpen();
    void toolTipsAreTheAdapters();
    void modesAreSwitched();
    void listsTakeEverything();
    void proxyHasNoIcons();
};

void IconListsTest::init()
{
    TestCase::init();
    ZelShortcutHandler::destroy();
    ZelShortcutHandler::prepareInstance();
}

void IconListsTest::cellsShareTheRow()
{
    const auto shared = &IconModeSizeDelegate::sharedWidth;
    QCOMPARE(shared(200, 500), 250);
    QCOMPARE(shared(600, 500), 600);
    QCOMPARE(shared(500, 500), 500);
    QCOMPARE(shared(0, 500), 0);
    QCOMPARE(shared(40, -8), 40);
}

void IconListsTest::captionsNeedRoom()
{
    for (const auto &[icon, lines] : {std::pair(47, 0), {48, 1}, {96, 1}, {97, 2}}) {
        QCOMPARE(ZelIconListItemDelegate::textLines(icon), lines);
        Adapter adapter;
        ZelIconListWidget list(nullptr, &adapter);
        const auto *delegate = qobject_cast<ZelIconListItemDelegate *>(list.itemDelegate());
        list.addItem(QStringLiteral("item"));
        QStyleOptionViewItem option;
        option.decorationSize = QSize(icon, icon);
        const QModelIndex item = list.model()->index(0, 0);
        const int line = QFontMetrics(list.font()).height() + 2;
        QCOMPARE(delegate->actualSizeHint(option, item).height(), icon + 2 + line * lines);
        QFont huge = list.font();
        huge.setPointSize(72);
        list.setFont(huge);
        QCOMPARE(delegate->actualSizeHint(option, item).height(), icon + 2);
    }
}

void IconListsTest::twoIconsAlwaysFit()
{
    using Ensure = EnsureTwoIconsOnSliderMax;
    QCOMPARE(Ensure::maximumFor(482, 4, 32, 512), 237);
    QCOMPARE(Ensure::maximumFor(40, 4, 32, 512), 48);
    QCOMPARE(Ensure::maximumFor(5000, 4, 32, 512), 512);
    QCOMPARE(Ensure::maximumFor(-5, 4, 32, 40), 40);
}

void IconListsTest::theSliderFollowsTheList()
{
    Adapter adapter;
    ZelIconListWidget list(nullptr, &adapter);
    for (int i = 0; i < 20; ++i)
        list.addItem(new QListWidgetItem(iconOf(Qt::red), QString::number(i)));
    auto slider = std::make_unique<QSlider>();
    slider->setRange(16, 512);
    new EnsureTwoIconsOnSliderMax(slider.get(), &list);
    QCOMPARE(slider->maximum(), 512);
    list.QWidget::resize(300, 200);
    list.show();
    QTRY_VERIFY(slider->maximum() < 150);
    const int narrow = slider->maximum();
    list.QWidget::resize(600, 200);
    QTRY_VERIFY(slider->maximum() > narrow);
    list.setListMode();
    list.QWidget::resize(200, 200);
    const int before = slider->maximum();
    QCoreApplication::processEvents();
    QCOMPARE(slider->maximum(), before);
    slider.reset();
    list.setIconMode();
    list.QWidget::resize(400, 200);
    QCoreApplication::processEvents();
}

void IconListsTest::zoomIsAskedFor()
{
    ZelListViewWithZoom view;
    ZelListWidgetWithZoom widget;
    const QSignalSpy ofView(&view, qOverload<int>(&ZelListViewWithZoom::resize));
    const QSignalSpy ofWidget(&widget, qOverload<int>(&ZelListWidgetWithZoom::resize));
    const QList<int> expected{120, -120, -120, 120, -240};
    for (QAbstractItemView *list :
         {static_cast<QAbstractItemView *>(&view), static_cast<QAbstractItemView *>(&widget)}) {
        list->show();
        QTest::keyClick(list, Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(list, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Underscore, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Equal, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Plus);
        UserInput::wheel(list->viewport(), 1, Qt::ControlModifier);
        UserInput::wheel(list->viewport(), -2, Qt::ControlModifier);
        UserInput::wheel(list->viewport(), 1);
    }
    for (const QSignalSpy *spy : {&ofView, &ofWidget}) {
        QList<int> deltas;
        for (const QList<QVariant> &call : *spy)
            deltas << call.first().toInt();
        QCOMPARE(deltas, expected);
    }
}

void IconListsTest::zoomKeepsItsPlace()
{
    ZelListWidgetWithZoom list;
    list.setViewMode(QListView::IconMode);
    list.setUniformItemSizes(true);
    list.setResizeMode(QListView::Adjust);
    QPixmap picture(256, 256);
    picture.fill(Qt::gray);
    for (int i = 0; i < 500; ++i)
        list.addItem(new QListWidgetItem(QIcon(picture), QString::number(i)));
    list.setIconSize({32, 32});
    connect(&list, qOverload<int>(&ZelListWidgetWithZoom::resize), &list, [&list](int delta) {
        const int side = list.iconSize().width() + delta / 10;
        list.setIconSize({side, side});
    });
    list.QWidget::resize(400, 300);
    list.show();
    list.setCurrentRow(300);
    list.scrollToItem(list.currentItem(), QListView::PositionAtCenter);
    const auto middleOf = [&list](int row) {
        return list.visualItemRect(list.item(row)).center().y();
    };
    const int before = middleOf(300);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&list, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(list.iconSize().width(), 92);
    QCOMPARE(middleOf(300), before);

    const QPoint cursor = list.viewport()->rect().center();
    const QListWidgetItem *below = list.itemAt(cursor);
    QVERIFY(below);
    const int place = middleOf(list.row(below));
    QWheelEvent wheel(QPointF(cursor), list.viewport()->mapToGlobal(QPointF(cursor)), {}, {0, -120},
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(list.viewport(), &wheel);
    QCOMPARE(list.iconSize().width(), 80);
    QCOMPARE(middleOf(list.row(below)), place);
}

void IconListsTest::dropsGoToTheSelection_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<bool>("onItem");
    QTest::addColumn<QList<int>>("targets");
    // As many as there are rows: only the one under the cursor is meant.
    QTest::newRow("all") << QList<int>{0, 1, 2} << true << QList<int>{1};
    QTest::newRow("one") << QList<int>{2} << true << QList<int>{1};
    QTest::newRow("beside") << QList<int>{2} << false << QList<int>{};
}

void IconListsTest::dropsGoToTheSelection()
{
    QFETCH(const QList<int>, selected);
    QFETCH(const bool, onItem);
    QFETCH(const QList<int>, targets);
    DropModel model(3, 1);
    ZelListView view;
    view.setSelectionMode(QAbstractItemView::MultiSelection);
    view.setModel(&model);
    view.setExtendDropToSelection(true);
    view.QWidget::resize(300, 300);
    view.show();
    for (const int row : selected)
        view.selectionModel()->select(model.index(row, 0), QItemSelectionModel::Select);
    const QSignalSpy began(&view, &ZelListView::beginDropSelection);
    const QSignalSpy ended(&view, &ZelListView::endDropSelection);
    const QSignalSpy entered(&view, &ZelListView::dragEnter);
    const QSignalSpy left(&view, &ZelListView::dragLeave);
    const QPoint point = onItem ? view.visualRect(model.index(1, 0)).center() : QPoint(150, 280);
    QCOMPARE(drop(view, point), !targets.isEmpty());
    QCOMPARE(model.rows, targets);
    QCOMPARE(began.size(), targets.isEmpty() ? 0 : 1);
    QCOMPARE(ended.size(), began.size());
    QCOMPARE(entered.size(), 1);
    QCOMPARE(left.size(), 1);
}

void IconListsTest::modelsMayChangeDuringADrop()
{
    auto model = std::make_unique<DropModel>(4, 1);
    auto view = std::make_unique<ZelListView>();
    view->setModel(model.get());
    view->setExtendDropToSelection(true);
    view->show();
    model->meanwhile = [&] {
        model->removeRows(0, 3);
    };
    QVERIFY(drop(*view, view->visualRect(model->index(1, 0)).center()));
    QCOMPARE(model->rowCount(), 1);
    // The list goes in the middle.
    model->meanwhile = [&] {
        model->meanwhile = nullptr;
        view.reset();
    };
    QMimeData data;
    const QPointF place = view->visualRect(model->index(0, 0)).center();
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    class Door : public ZelListView
    {
    public:
        using ZelListView::dropEvent;
    };
    (static_cast<ZelListView *>(view.get())->*(&Door::dropEvent))(&event);
    QVERIFY(!view);
}

void IconListsTest::dragsShowAStack()
{
    QCOMPARE(ZelItemDrag::places(1), QList<QPoint>{QPoint(0, 0)});
    QCOMPARE(ZelItemDrag::places(2), (QList<QPoint>{QPoint(0, 14), QPoint(28, 14)}));
    const QList<QPoint> three = ZelItemDrag::places(3);
    QCOMPARE(three, (QList<QPoint>{QPoint(0, 14), QPoint(14, 14), QPoint(28, 14)}));
    QCOMPARE(ZelItemDrag::places(1000).size(), 25);
    QList<qsizetype> asked;
    const QPixmap picture = ZelItemDrag::picture(1000, 2.0, [&](qsizetype at) {
        asked << at;
        QPixmap pixmap(200, 200);
        pixmap.setDevicePixelRatio(2);
        pixmap.fill(at == 999 ? Qt::green : Qt::red);
        return pixmap;
    });
    QCOMPARE(asked.size(), 25);
    QCOMPARE(picture.size(), QSize(256, 256));
    QCOMPARE(picture.devicePixelRatio(), 2.0);
    QCOMPARE(picture.toImage().pixelColor(150, 100), QColor(Qt::green));
    QCOMPARE(picture.toImage().pixelColor(3, 100), QColor(Qt::red));
    QCOMPARE(picture.toImage().pixelColor(3, 5).alpha(), 0);
    QVERIFY(ZelItemDrag::picture(0, 1, {}).isNull());
}

/// A shown list of three items with its adapter.
struct Shelf
{
    Shelf()
        : list(nullptr, &adapter)
    {
        for (const char *name : {"a", "b", "c"}) {
            auto *item = new QListWidgetItem(iconOf(Qt::blue), QLatin1String(name));
            item->setFlags(item->flags() | Qt::ItemIsEditable);
            list.addItem(item);
        }
        list.setIconSize(QSize(64, 64));
        list.QWidget::resize(400, 300);
        list.show();
        list.activateWindow();
    }
    QPoint place(int row) { return list.visualItemRect(list.item(row)).center(); }
    void click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, place(row));
    }

    Adapter adapter;
    ZelIconListWidget list;
};

void IconListsTest::dragsWriteTheirItemsWhenAsked()
{
    auto shelf = std::make_unique<Shelf>();
    QAbstractItemModel *model = shelf->list.model();
    const auto dataOf = [model](std::initializer_list<int> rows) {
        QModelIndexList indices;
        for (const int row : rows)
            indices << model->index(row, 0);
        return std::unique_ptr<QMimeData>(model->mimeData(indices));
    };
    const auto two = dataOf({0, 1});
    const auto other = dataOf({2});
    const auto late = dataOf({2});
    QVERIFY(two->hasFormat(model->mimeTypes().constFirst()));
    delete shelf->list.takeItem(0);
    ZelIconListWidget target(nullptr, &shelf->adapter);
    QVERIFY(target.model()->dropMimeData(two.get(), Qt::CopyAction, -1, -1, {}));
    QVERIFY(target.model()->dropMimeData(other.get(), Qt::CopyAction, -1, -1, {}));
    QCOMPARE(target.count(), 2);
    QStringList texts{target.item(0)->text(), target.item(1)->text()};
    texts.sort();
    QCOMPARE(texts, (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
    QVERIFY(!target.item(0)->icon().isNull());
    shelf.reset();
    QVERIFY(late->data(late->formats().constFirst()).isEmpty());
}

void IconListsTest::clicksCopyRenameAndOpen()
{
    Shelf shelf;
    shelf.click(1);
    QVERIFY(shelf.list.item(1)->isSelected());
    QVERIFY(!shelf.list.findChild<QLineEdit *>());
    shelf.click(1, Qt::ShiftModifier);
    QCOMPARE(shelf.adapter.calls, QStringList{QStringLiteral("copy b")});
    QVERIFY(!shelf.list.findChild<QLineEdit *>());
    shelf.click(1);
    auto *editor = shelf.list.findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(QStringLiteral("z"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(shelf.list.currentItem()->text(), QStringLiteral("z"));
    shelf.adapter.calls.clear();
    QTest::mouseDClick(shelf.list.viewport(), Qt::LeftButton, {}, shelf.place(0));
    QCOMPARE(shelf.adapter.calls, QStringList{QStringLiteral("open a")});
    QTest::keyClick(&shelf.list, Qt::Key_Return);
    QCOMPARE(shelf.adapter.calls.last(), QStringLiteral("open z"));
    shelf.adapter.calls.clear();
    QMetaObject::invokeMethod(&shelf.list, "slotCopyHotKey");
    QCOMPARE(shelf.adapter.calls, QStringList{QStringLiteral("copy z")});
    shelf.list.clearSelection();
    QMetaObject::invokeMethod(&shelf.list, "slotCopyHotKey");
    QCOMPARE(shelf.adapter.calls.size(), 1);
}

void IconListsTest::toolTipsAreTheAdapters()
{
    Shelf shelf;
    shelf.list.enableCustomTooltips(true);
    const auto ask = [&](const QPoint &place) {
        QCursor::setPos(shelf.list.viewport()->mapToGlobal(place));
        QHelpEvent event(QEvent::ToolTip, place, QCursor::pos());
        QCoreApplication::sendEvent(shelf.list.viewport(), &event);
    };
    shelf.adapter.calls.clear();
    ask(shelf.place(0));
    ask(shelf.place(0));
    ask(shelf.place(2));
    ask(QPoint(390, 290));
    QCOMPARE(shelf.adapter.calls.join(u','), QStringLiteral("hide,tip a,hide,tip c,hide"));
    // The item that is shown goes.
    ask(shelf.place(0));
    delete shelf.list.takeItem(0);
    ask(shelf.place(0));
    QCOMPARE(shelf.adapter.calls.last(), QStringLiteral("tip b"));
    shelf.list.hide();
    QCOMPARE(shelf.adapter.calls.last(), QStringLiteral("hide"));
}

void IconListsTest::modesAreSwitched()
{
    Shelf shelf;
    shelf.list.setSelectionRectVisible(true);
    shelf.list.setIconMode();
    QVERIFY(shelf.list.isSelectionRectVisible());
    shelf.list.setListMode();
    QCOMPARE(shelf.list.viewMode(), QListView::ListMode);
    QVERIFY(!shelf.list.isWrapping());
    shelf.list.setIconMode();
    QVERIFY(shelf.list.isWrapping());
    QCOMPARE(shelf.list.textElideMode(), Qt::ElideRight);
    shelf.list.grab();
}

void IconListsTest::listsTakeEverything()
{
    ZelListWidget list;
    list.show();
    QString got;
    connect(&list, &ZelListWidget::gotDropData, this,
            [&got](const QMimeData *data) { got = data->text(); });
    QVERIFY(drop(list, QPoint(5, 5)));
    QCOMPARE(got, QStringLiteral("dropped"));
    QCOMPARE(list.count(), 0);
    ZelListWidgetWithSizeHint wide;
    wide.addItem(QStringLiteral("a rather long entry"));
    QCOMPARE(wide.sizeHint().width(), wide.sizeHintForColumn(0) + 5);
}

void IconListsTest::proxyHasNoIcons()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(iconOf(Qt::red), QStringLiteral("red")));
    ZelRemoveIconProxyModel proxy;
    const QAbstractItemModelTester tester(&proxy);
    proxy.setSourceModel(&model);
    model.appendRow(new QStandardItem(QStringLiteral("green")));
    QVERIFY(!proxy.index(0, 0).data(Qt::DecorationRole).isValid());
    QCOMPARE(proxy.index(0, 0).data().toString(), QStringLiteral("red"));
}

ZEL_TEST_MAIN(IconListsTest)
#include "tst_icon_lists.moc"
