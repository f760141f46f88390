#include "ColorListInput.h"
#include "Rows.h"
#include "color/ZelColorMime.h"

#include <ZelCore/ZelMimeTypes>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelMessageBox>
#include <ZelWidgets/ZelMultiColorListModel>
#include <ZelWidgets/ZelMultiColorTreeView>

#include <QDialogButtonBox>
#include <QIcon>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

/// A list of sub-colours named by the letters; the weights count up from 1.
zelsg::Color listOf(const QString &letters, int active = 0)
{
    zelsg::Color color;
    std::vector<ZelColor> parts;
    for (const QChar letter : letters)
        parts.push_back(named(QString(letter).toUtf8(), float(parts.size()) / 10, 0.5F, 0));
    color.setColors(parts);
    for (int i = 0; i < color.nColors(); ++i)
        color.setWeight(float(i + 1), i);
    color.setActiveIndex(active);
    return color;
}

/// Names in their order, the active one in brackets, each with its weight.
QString described(const zelsg::Color &color)
{
    QString text;
    for (int i = 0; i < color.nColors(); ++i) {
        const QString name = QString::fromStdString(color.getName(i));
        text += (i == color.activeIndex() ? u'[' + name + u']' : name) +
                QString::number(double(color.getWeight(i)));
    }
    return text;
}

} // namespace

class SubColorsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void draggedColors();
    void hostileData_data();
    void hostileData();
    void subColorsAreShown();
    void subColorsMove_data();
    void subColorsMove();
    void subColorsAreDropped();
    void activeSubColorIsTheCurrentRow();
    void subColorsAreEdited();
    void namesAreEditedInPlace();
    void subColorsGoToTheLibrary();
    void treeFollowsItsOwner();
};

void SubColorsTest::draggedColors()
{
    const ZelColor lab(ZelColor::Space::Lab, 50, -20, 30);
    const auto one = dataOf(lab);
    QVERIFY(ZelColorMime::hasColor(one.get()) && !ZelColorMime::hasMultiColor(one.get()));
    QCOMPARE(ZelColorMime::color(one.get())->components(), lab.components());
    QCOMPARE(one->colorData().value<QColor>(), toQColor(lab));

    const zelsg::Color list = listOf(QStringLiteral("abc"), 1);
    const auto several = dataOf(list);
    QVERIFY(ZelColorMime::hasMultiColor(several.get()));
    QCOMPARE(*ZelColorMime::multiColor(several.get()), list);
    QCOMPARE(ZelColorMime::color(several.get())->name(), "b");

    QMimeData foreign;
    foreign.setColorData(QColor(1, 2, 3, 4));
    QCOMPARE(toQColor(*ZelColorMime::color(&foreign)), QColor(1, 2, 3));
    const std::array<quint16, 4> raw{0xffff, 0x8080, 0, 0xffff};
    foreign.setData(QStringLiteral("application/x-color"),
                    QByteArray(reinterpret_cast<const char *>(raw.data()), sizeof raw));
    QCOMPARE(toQColor(*ZelColorMime::color(&foreign)).name(), QStringLiteral("#ff8000"));
}

void SubColorsTest::hostileData_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = dataOf(listOf(QStringLiteral("ab")))->data(ZelMimeTypes::MULTI_COLOR);
    for (const QString &type : {ZelMimeTypes::COLOR, ZelMimeTypes::MULTI_COLOR}) {
        QTest::addRow("%s, empty", qPrintable(type)) << type << QByteArray();
        QTest::addRow("%s, junk", qPrintable(type)) << type << QByteArray(1000, '\xA5');
        QTest::addRow("%s, cut", qPrintable(type)) << type << whole.chopped(1);
    }
    const auto foreign = QStringLiteral("application/x-color");
    QTest::newRow("foreign, empty") << foreign << QByteArray();
    QTest::newRow("foreign, short") << foreign << QByteArray(7, '\0');
    QTest::newRow("foreign, long") << foreign << QByteArray(1 << 20, '#');
}

void SubColorsTest::hostileData()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, bytes);
    const auto data = rawData(type, bytes);
    QVERIFY(!ZelColorMime::color(data.get()) && !ZelColorMime::multiColor(data.get()));
    QVERIFY(!ZelColorMime::color(nullptr) && !ZelColorMime::hasColor(nullptr));
    ZelMultiColorTreeView tree;
    const zelsg::Color color = listOf(QStringLiteral("abc"), 1);
    tree.setColor(color);
    show(tree);
    QSignalSpy changed(&tree, &ZelMultiColorTreeView::colorChanged);
    QVERIFY(!drop(tree, middle(tree, 1), data.get()));
    QCOMPARE(described(color), QStringLiteral("a1[b]2c3"));
    QVERIFY(changed.isEmpty());
}

void SubColorsTest::subColorsAreShown()
{
    ZelMultiColorListModel model;
    const Tester tester(&model, fatal);
    model.setColor(listOf(QStringLiteral("ab")));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.index(1, 1).data().toString(), QStringLiteral("b"));
    QCOMPARE(model.index(1, 1).data(Qt::EditRole).toString(), QStringLiteral("b"));
    QVERIFY(!model.index(1, 0).data().isValid());
    QVERIFY(!model.index(1, 1).data(Qt::DecorationRole).isValid());
    QVERIFY(model.mimeTypes().contains(QStringLiteral("application/x-color")));

    model.setIconSize(100);
    const QIcon icon = model.index(1, 0).data(Qt::DecorationRole).value<QIcon>();
    const QString color = toDisplayQColor(model.color().getColor(1)).name();
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
        const QImage image = icon.pixmap(100, mode).toImage();
        QCOMPARE(image.pixelColor(50, 50).name(), color);
        QCOMPARE(image.pixelColor(25, 50).name(), color);
        QCOMPARE(image.pixelColor(10, 50), QColor(Qt::darkGray));
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
    }
}

using MoveRow = std::tuple<int, int, int, QString>;

void SubColorsTest::subColorsMove_data()
{
    addRows<MoveRow>({
        {"down", {0, 2, 1, QStringLiteral("[b]2c3a1d4")}},
        {"up", {3, 0, 1, QStringLiteral("d4a1[b]2c3")}},
        {"the active one", {1, 3, 1, QStringLiteral("a1c3d4[b]2")}},
        {"onto the active one", {0, 2, 2, QStringLiteral("b2[c]3a1d4")}},
        {"past the active one", {2, 1, 1, QStringLiteral("a1c3[b]2d4")}},
        {"nowhere", {1, 1, 0, QStringLiteral("[a]1b2c3d4")}},
        {"beyond", {1, 4, 0, QStringLiteral("[a]1b2c3d4")}},
    });
}

void SubColorsTest::subColorsMove()
{
    const auto [from, to, active, expected] = currentRow<MoveRow>();
    const zelsg::Color color = listOf(QStringLiteral("abcd"), active);
    ZelMultiColorListModel model;
    const Tester tester(&model, fatal);
    model.setColor(color);
    const QPersistentModelIndex row = model.index(active, 1);
    const QString name = row.data().toString();
    model.moveColor(from, to);
    QCOMPARE(described(color), expected);
    QCOMPARE(row.data().toString(), name);
    QCOMPARE(row.row(), color.activeIndex());
}

void SubColorsTest::subColorsAreDropped()
{
    ZelMultiColorTreeView tree;
    zelsg::Color color = listOf(QStringLiteral("abcd"), 1);
    tree.setColor(color);
    show(tree);
    QSignalSpy changed(&tree, &ZelMultiColorTreeView::colorChanged);
    const QAbstractItemModel *model = tree.model();
    const std::unique_ptr<QMimeData> own(model->mimeData({model->index(0, 0)}));
    const QRect third = tree.visualRect(model->index(2, 1));

    QVERIFY(drop(tree, third.center(), own.get()));
    QCOMPARE(described(color), QStringLiteral("[b]2c3a1d4"));
    QCOMPARE(tree.currentIndex().row(), 0);
    QCOMPARE(changed.count(), 1);

    const auto other = dataOf(named("x", 1, 1, 0));
    QVERIFY(drop(tree, third.topLeft() + QPoint(4, 0), other.get()));
    QCOMPARE(described(color), QStringLiteral("[b]2c3x1a1d4"));
    QVERIFY(drop(tree, middle(tree, 0), dataOf(named("n", 0, 0, 1)).get()));
    QCOMPARE(described(color), QStringLiteral("[n]2c3x1a1d4"));
    QCOMPARE(color.getActive(), named("", 0, 0, 1));
    QVERIFY(drop(tree, tree.viewport()->rect().bottomLeft() + QPoint(4, -2), other.get()));
    QCOMPARE(described(color), QStringLiteral("[n]2c3x1a1d4x1"));
    QVERIFY(tree.model()->dropMimeData(own.get(), Qt::CopyAction, 1, 0, {}));
    QVERIFY(tree.model()->dropMimeData(own.get(), Qt::CopyAction, 5, 0, {}));
    QCOMPARE(described(color), QStringLiteral("[n]2c3x1d4a1x1"));
    QCOMPARE(changed.count(), 6);
    // The same sub-colour, dropped on another list, is a copy.
    ZelMultiColorListModel second;
    QVERIFY(second.dropMimeData(own.get(), Qt::CopyAction, 0, 0, {}));
    QCOMPARE(second.color().nColors(), 2);
    QCOMPARE(color.nColors(), 6);
}

void SubColorsTest::activeSubColorIsTheCurrentRow()
{
    ZelMultiColorTreeView tree;
    zelsg::Color color = listOf(QStringLiteral("abc"), 1);
    QSignalSpy changed(&tree, &ZelMultiColorTreeView::colorChanged);
    tree.setColor(color);
    show(tree);
    QCOMPARE(tree.currentIndex().row(), 1);
    tree.select(0);
    QCOMPARE(color.activeIndex(), 0);
    tree.select(7);
    QCOMPARE(color.activeIndex(), 0);
    QCOMPARE(changed.count(), 0);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, middle(tree, 2));
    QCOMPARE(color.activeIndex(), 2);
    QTest::keyClick(&tree, Qt::Key_Up);
    QCOMPARE(color.activeIndex(), 1);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last().first().value<ZelColor>().name(), "b");
}

void SubColorsTest::subColorsAreEdited()
{
    ZelMultiColorTreeView tree;
    const Tester tester(tree.model(), fatal);
    zelsg::Color color = listOf(QStringLiteral("abc"), 1);
    tree.setColor(color);
    show(tree);
    QSignalSpy changed(&tree, &ZelMultiColorTreeView::colorChanged);
    QTest::keyClick(&tree, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(described(color), QStringLiteral("a1c3[b]2"));
    QTest::keyClick(&tree, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(changed.count(), 1);
    tree.addColor(named("d", 1, 1, 1));
    QCOMPARE(described(color), QStringLiteral("a1c3b2[d]1"));
    QCOMPARE(tree.currentIndex().row(), 3);
    QTest::keyClick(&tree, Qt::Key_Delete);
    QCOMPARE(described(color), QStringLiteral("a1c3[b]2"));
    const QString erase = QStringLiteral("Delete Color");
    QCOMPARE(useMenu(tree, middle(tree, 0), erase),
             QStringList({erase, QStringLiteral("Save to Library")}));
    QCOMPARE(described(color), QStringLiteral("c3[b]2"));
    QTest::keyClick(&tree, Qt::Key_Delete);
    QTest::keyClick(&tree, Qt::Key_Delete);
    QCOMPARE(described(color), QStringLiteral("[c]3"));
    QCOMPARE(tree.currentIndex().row(), 0);
    QCOMPARE(changed.count(), 5);
}

void SubColorsTest::namesAreEditedInPlace()
{
    QDialog dialog;
    auto *tree = new ZelMultiColorTreeView(nullptr, &dialog);
    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok, &dialog);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(tree);
    layout->addWidget(box);
    connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    zelsg::Color color = listOf(QStringLiteral("ab"), 1);
    tree->setColor(color);
    show(dialog);
    tree->setFocus();
    QSignalSpy changed(tree, &ZelMultiColorTreeView::colorChanged);
    QTest::keyClick(tree, Qt::Key_F2);
    auto *editor = tree->findChild<QLineEdit *>();
    QVERIFY(editor && editor->hasFocus());
    QCOMPARE(editor->text(), QStringLiteral("b"));
    QTest::keyClicks(editor, QStringLiteral("  Deep  Red "));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(color.getName(1), "Deep Red");
    QVERIFY(dialog.isVisible());
    QCOMPARE(changed.count(), 1);
    // A click on the icon edits the name too; a cancelled change closes the editor.
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, middle(*tree, 1));
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, middle(*tree, 1));
    const QPointer<QWidget> again = tree->indexWidget(tree->model()->index(1, 1));
    QVERIFY(again && again->isVisible());
    QTest::keyClicks(again, QStringLiteral("x"));
    tree->onColorChanged(color, true);
    QTRY_VERIFY(!again || !again->isVisible());
    QCOMPARE(color.getName(1), "Deep Red");
}

void SubColorsTest::subColorsGoToTheLibrary()
{
    ZelMultiColorTreeView tree;
    zelsg::Color color = listOf(QStringLiteral("a "), 1);
    tree.setColor(color);
    show(tree);
    QSignalSpy saved(&tree, &ZelMultiColorTreeView::saveColorToLibrary);
    const ZelScopedMessageBoxMode quiet(ZelMessageBox::NoGui);
    const QString save = QStringLiteral("Save to Library");
    messages().expect(QtWarningMsg, QStringLiteral("Please specify a color name"));
    useMenu(tree, middle(tree, 1), save);
    QVERIFY(saved.isEmpty());
    useMenu(tree, middle(tree, 0), save);
    QCOMPARE(saved.count(), 1);
    const auto chosen = saved.first().first().value<zelsg::Color>();
    QVERIFY(!chosen.isMultiColor());
    QCOMPARE(chosen.getColorName(), "a");
    QCOMPARE(chosen.getActive(), color.getColor(0));
}

void SubColorsTest::treeFollowsItsOwner()
{
    ZelMultiColorTreeView tree;
    zelsg::Color color = listOf(QStringLiteral("abc"), 1);
    tree.setColor(color);
    QSignalSpy changed(&tree, &ZelMultiColorTreeView::colorChanged);
    color.deleteColor(1);
    color.setName("new", 1);
    tree.onColorChanged(color, false);
    QCOMPARE(tree.model()->rowCount(), 2);
    QCOMPARE(tree.model()->index(1, 1).data().toString(), QStringLiteral("new"));
    QCOMPARE(tree.currentIndex().row(), color.activeIndex());
    // Behind its back: nothing is read or written beyond the end.
    color.clearMultiColors();
    QCOMPARE(tree.model()->index(1, 1).data().toString(), QString());
    tree.colorModel()->moveColor(0, 1);
    QCOMPARE(tree.model()->rowCount(), 1);
    tree.setColor(listOf(QStringLiteral("xyz"), 2));
    QCOMPARE(tree.currentIndex().row(), 2);
    QVERIFY(changed.isEmpty());
}

ZEL_TEST_MAIN(SubColorsTest)
#include "tst_sub_colors.moc"
