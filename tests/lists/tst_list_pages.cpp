// The pages of lists and trees: the model of the scene, materials dragged into lists and onto
// objects, and the zoom that runs from list to slider and back.

#include "TestCase.h"
#include "UserInput.h"

#include "GalleryShortcuts.h"
#include "pages/IconListPage.h"
#include "pages/MaterialLibrary.h"
#include "pages/MaterialList.h"
#include "pages/SceneModel.h"
#include "pages/TreePage.h"

#include <ZelWidgets/ZelShortcutHandler>
#include <ZelWidgets/ZelTreeView>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace {

using Data = std::unique_ptr<QMimeData>;

/// File managers propose to move, our own lists to copy.
bool drop(QAbstractItemView *view, QPoint at, const QMimeData *data,
          Qt::DropAction proposed = Qt::CopyAction)
{
    constexpr Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(at, actions, data, Qt::LeftButton, Qt::NoModifier);
    enter.setDropAction(proposed);
    QCoreApplication::sendEvent(view->viewport(), &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(at, actions, data, Qt::LeftButton, Qt::NoModifier);
    event.setDropAction(proposed);
    event.ignore();
    QCoreApplication::sendEvent(view->viewport(), &event);
    return event.isAccepted() && event.dropAction() == Qt::CopyAction;
}

template <typename List>
List *named(QWidget *page, const QString &name)
{
    for (List *list : page->findChildren<List *>()) {
        if (list->accessibleName() == name)
            return list;
    }
    return nullptr;
}

} // namespace

class ListPagesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ZelShortcutHandler::prepareInstance();
        GalleryShortcuts::registerIds();
    }
    void theSceneKeepsTheRulesOfModels();
    void noGroupGoesIntoItself();
    void brokenDataChangeNothing();
    void materialsAreTheSameEachTime();
    void onlyThePicturesThatAreSeenArePainted();
    void listAndSliderZoomEachOther();
    void listsTakeMaterialsAndFiles();
    void aMaterialGoesToTheWholeSelection();
};

void ListPagesTest::theSceneKeepsTheRulesOfModels()
{
    SceneModel scene(200);
    const QAbstractItemModelTester tester(&scene,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QModelIndex layer = scene.index(0, 0);
    const QPersistentModelIndex from = scene.index(0, 0, layer);
    const QPersistentModelIndex to = scene.index(1, 0, layer);
    const QPersistentModelIndex object = scene.index(2, 0, from);
    const int before = scene.rowCount(to);
    const Data data(scene.mimeData({object}));
    QVERIFY(scene.dropMimeData(data.get(), Qt::CopyAction, -1, -1, to));
    QCOMPARE(scene.rowCount(to), before + 1);
    QCOMPARE(object.parent(), QModelIndex(to));
    QVERIFY(scene.setData(object, true, SceneModel::LockedRole));
    QVERIFY(!object.flags().testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(!scene.setData(object, 3, SceneModel::MaterialRole));
}

void ListPagesTest::noGroupGoesIntoItself()
{
    SceneModel scene(200);
    const QModelIndex layer = scene.index(0, 0);
    const QModelIndex group = scene.index(0, 0, layer);
    const QModelIndex object = scene.index(0, 0, group);
    const Data ofGroup(scene.mimeData({group}));
    const Data ofLayer(scene.mimeData({layer}));
    QVERIFY(!scene.dropMimeData(ofGroup.get(), Qt::CopyAction, -1, -1, group));
    QVERIFY(!scene.dropMimeData(ofGroup.get(), Qt::CopyAction, -1, -1, object));
    QVERIFY(!scene.dropMimeData(ofLayer.get(), Qt::CopyAction, -1, -1, group));
    QVERIFY(!scene.dropMimeData(ofGroup.get(), Qt::CopyAction, -1, -1, {}));
}

void ListPagesTest::brokenDataChangeNothing()
{
    SceneModel scene(200);
    const QModelIndex group = scene.index(0, 0, scene.index(0, 0));
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("-1,99999999,x,,4294967296"), QByteArray(1 << 22, '1')}) {
        QMimeData objects;
        objects.setData(SceneModel::mimeType(), bytes);
        QVERIFY(!scene.dropMimeData(&objects, Qt::CopyAction, -1, -1, group));
        QMimeData materials;
        materials.setData(MaterialLibrary::mimeType(), bytes);
        QVERIFY(MaterialLibrary::fromMimeData(&materials).isEmpty());
    }
}

void ListPagesTest::materialsAreTheSameEachTime()
{
    QCOMPARE(MaterialLibrary::picture(17, 48), MaterialLibrary::picture(17, 48));
    QVERIFY(MaterialLibrary::picture(17, 48) != MaterialLibrary::picture(25, 48));
    const Data data(MaterialLibrary::toMimeData({17, 9999, 3}));
    QCOMPARE(MaterialLibrary::fromMimeData(data.get()), (QList{17, 9999, 3}));
}

void ListPagesTest::onlyThePicturesThatAreSeenArePainted()
{
    MaterialList list(QStringLiteral("List"), nullptr);
    QList<int> numbers;
    for (int number = 0; number < MaterialLibrary::size; ++number)
        numbers << number;
    list.setIconSize(QSize(61, 61));
    list.addMaterials(numbers);
    list.QWidget::resize(400, 300);
    const int before = MaterialLibrary::paintedPictures();
    list.grab();
    const int first = MaterialLibrary::paintedPictures() - before;
    QVERIFY2(first > 8 && first < 60, qPrintable(QString::number(first)));
    list.viewport()->update();
    list.grab();
    QCOMPARE(MaterialLibrary::paintedPictures() - before, first);
}

void ListPagesTest::listAndSliderZoomEachOther()
{
    IconListPage page;
    page.resize(900, 800);
    page.show();
    auto *library = named<MaterialList>(&page, QStringLiteral("Library"));
    auto *slider = page.findChild<QSlider *>();
    QVERIFY(library && slider);
    QCOMPARE(library->count(), MaterialLibrary::size);
    QTRY_VERIFY(slider->maximum() < library->viewport()->width() / 2);
    const int before = slider->value();
    QVERIFY(UserInput::wheel(library->viewport(), 1, Qt::ControlModifier));
    QCOMPARE(library->iconSize().width(), slider->value());
    QVERIFY(slider->value() > before);
    QTest::keyClick(library, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(library->iconSize(), QSize(before, before));
    // Two of the widest fit beside each other.
    slider->setValue(slider->maximum());
    QTRY_COMPARE(library->visualItemRect(library->item(0)).top(),
                 library->visualItemRect(library->item(1)).top());

    page.findChildren<QRadioButton *>().at(1)->click();
    QCOMPARE(library->viewMode(), QListView::ListMode);
    QVERIFY(!slider->isEnabled());
    page.findChildren<QRadioButton *>().at(0)->click();
    QCOMPARE(library->iconSize().width(), slider->value());
}

void ListPagesTest::listsTakeMaterialsAndFiles()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("photo.png"));
    QVERIFY(QImage(MaterialLibrary::picture(1, 600)).save(path));
    MaterialList list(QStringLiteral("List"), nullptr);
    list.QWidget::resize(300, 300);
    list.show();
    QSignalSpy said(&list, &MaterialList::said);
    const Data materials(MaterialLibrary::toMimeData({5, 6}));
    QVERIFY(drop(&list, {10, 10}, materials.get()));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path), QUrl(QStringLiteral("https://example.org/a"))});
    QVERIFY(drop(&list, {10, 10}, &files, Qt::MoveAction));
    QCOMPARE(list.count(), 4);
    QCOMPARE(said.size(), 2);
    const auto photos = list.findItems(QStringLiteral("photo.png"), Qt::MatchExactly);
    QCOMPARE(photos.size(), 1);
    QVERIFY(photos.first()->icon().availableSizes().constFirst().width() <= 256);
    QMimeData foreign;
    foreign.setData(QStringLiteral("application/x-other"), QByteArray(8, 'x'));
    QVERIFY(!drop(&list, {10, 10}, &foreign));
    QCOMPARE(list.count(), 4);

    list.setCurrentItem(photos.first());
    QTest::keyClick(&list, Qt::Key_Return);
    QVERIFY(said.last().first().toString().contains(QStringLiteral("photo.png")));
}

void ListPagesTest::aMaterialGoesToTheWholeSelection()
{
    TreePage page;
    page.resize(900, 800);
    page.show();
    auto *tree = page.findChild<ZelTreeView *>();
    auto *model = qobject_cast<SceneModel *>(tree->model());
    QVERIFY(model);
    const QModelIndex group = model->index(0, 0, model->index(0, 0));
    const auto withMaterial = [&] {
        int count = 0;
        for (int row = 0; row < model->rowCount(group); ++row)
            count += model->index(row, 0, group).data(SceneModel::MaterialRole).toInt() == 123;
        return count;
    };
    const Data data(MaterialLibrary::toMimeData({123}));
    const QPoint at = tree->visualRect(model->index(0, 0, group)).center();
    QVERIFY(drop(tree, at, data.get()));
    QCOMPARE(withMaterial(), 1);
    const QItemSelection rows(model->index(0, 0, group), model->index(7, 0, group));
    tree->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    QSignalSpy begun(tree, &ZelTreeView::beginDropSelection);
    QVERIFY(drop(tree, at, data.get()));
    QCOMPARE(begun.size(), 1);
    // The fourth is locked.
    QCOMPARE(withMaterial(), 7);
    Q_EMIT tree->copyRequest();
    QCOMPARE(QGuiApplication::clipboard()->text().split(u'\n').size(), 8);
    QTest::keyClicks(tree, QStringLiteral("plants"));
    QVERIFY(tree->currentIndex().data().toString() == QStringLiteral("Plants"));
}

QTEST_MAIN(ListPagesTest)
#include "tst_list_pages.moc"
