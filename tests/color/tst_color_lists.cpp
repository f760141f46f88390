#include "TestCase.h"
#include "UserInput.h"
#include "color/ZelColorMime.h"
#include "color/ZelGplPalette.h"
#include "color/ZelSwatchStream.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelMimeTypes>
#include <ZelCore/ZelSettings>
#include <ZelWidgets/ColorSwatchModel>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorSwatchListView>
#include <ZelWidgets/ZelMessageBox>
#include <ZelWidgets/ZelMultiColorListModel>
#include <ZelWidgets/ZelMultiColorTreeView>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <limits>
#include <memory>

namespace {

const QString swatchesKey = QStringLiteral("swatches");
const QString unreadKey = QStringLiteral("swatches_unread");

ZelSettings store()
{
    return ZelSettings(QStringLiteral("colordialog"));
}

ZelColor named(const char *name, float red, float green, float blue)
{
    ZelColor color(ZelColor::Space::RGB, red, green, blue);
    color.setName(name);
    return color;
}

/// As the application writes it, but by hand.
struct Swatches
{
    Swatches() { stream << 50; }
    Swatches &add(int version, const ZelColor &color)
    {
        const auto [x, y, z] = color.toXYZ();
        stream << version << x << y << z;
        if (version == 2)
            stream << QString::fromStdString(color.name());
        return *this;
    }

    QByteArray bytes;
    QDataStream stream{&bytes, QIODevice::WriteOnly};
};

QByteArray threeSwatches()
{
    Swatches swatches;
    swatches.add(1, named("", 1, 0, 0)).add(2, named("Sky", 0, 0, 1)).add(2, named("", 1, 1, 1));
    return swatches.bytes;
}

QString names(const std::vector<ZelColor> &colors)
{
    QStringList names;
    for (const ZelColor &color : colors)
        names.append(QString::fromStdString(color.name()));
    return names.join(u',');
}

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

std::unique_ptr<QMimeData> dataOf(const zelsg::Color &color)
{
    auto data = std::make_unique<QMimeData>();
    ZelColorMime::encode(color, data.get());
    return data;
}

std::unique_ptr<QMimeData> rawData(const QString &type, const QByteArray &bytes)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(type, bytes);
    return data;
}

/// Enters with the data and drops them; whether they were taken.
bool drop(QAbstractItemView &view, QPoint place, const QMimeData *data)
{
    QDragEnterEvent enter(place, Qt::CopyAction, data, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(place, Qt::CopyAction, data, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &move);
    QDropEvent event(place, Qt::CopyAction, data, Qt::LeftButton, {});
    event.ignore();
    QApplication::sendEvent(view.viewport(), &event);
    return move.isAccepted() && event.isAccepted();
}

QPoint middle(const QAbstractItemView &view, int row, int column = 0)
{
    return view.visualRect(view.model()->index(row, column)).center();
}

/// Opens the context menu, triggers the entry of that text and gives all texts.
QStringList useMenu(QAbstractItemView &view, QPoint place, const QString &entry)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &event);
    QStringList texts;
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    if (!menu)
        return texts;
    for (QAction *action : menu->actions()) {
        texts.append(action->text());
        if (action->text() == entry)
            action->trigger();
    }
    if (menu)
        menu->close();
    return texts;
}

/// Watches the model, and ends the run if it breaks the rules of models.
using Tester = QAbstractItemModelTester;
constexpr auto fatal = Tester::FailureReportingMode::Fatal;

void show(QWidget &widget)
{
    widget.resize(300, 200);
    widget.show();
    widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
}

} // namespace

class ColorListsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void firstRunShowsTheChart();
    void swatchesComeBack();
    void oldWhitesGoOnce();
    void brokenSwatches_data();
    void brokenSwatches();
    void tornSwatchesNeverBecomeColors();
    void swatchesFollowTheDisplay();
    void swatchesArePicked();
    void swatchesAreReadAloud();
    void swatchesAreDeleted();
    void swatchesAreDropped();
    void palettes_data();
    void palettes();
    void palettesKeepWhatIsShown();
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

void ColorListsTest::cleanup()
{
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    TestCase::cleanup();
}

void ColorListsTest::firstRunShowsTheChart()
{
    {
        const ZelColorSwatchListView view;
        ColorSwatchModel &model = *view.swatchModel();
        const Tester tester(&model, fatal);
        QCOMPARE(model.rowCount(), 24);
        QCOMPARE(model.color(0).name(), "Dark skin");
        QCOMPARE(toQColor(model.color(0)).name(), QStringLiteral("#735244"));
        QCOMPARE(model.color(11).name(), "Orange Yellow");
        QCOMPARE(toQColor(model.color(23)).name(), QStringLiteral("#343434"));
        const QModelIndex first = model.index(0);
        QCOMPARE(model.flags(first).toInt(), 169);
        for (int role = 0; role < Qt::UserRole; ++role)
            QCOMPARE(model.data(first, role).isValid(), role == Qt::DecorationRole);
        const QStringList types{ZelMimeTypes::COLOR, QStringLiteral("application/x-color")};
        QCOMPARE(model.mimeTypes(), types);
        QVERIFY(!store().hasKey(swatchesKey));
    }
    const auto content = ZelSwatchStream::read(store().value(swatchesKey).toByteArray());
    QVERIFY(content && content->isWhole);
    QCOMPARE(content->colors.size(), 24U);
    QCOMPARE(content->colors[0].space(), ZelColor::Space::XYZ);
    QCOMPARE(content->colors[3], fromQColor(QColor(QStringLiteral("#576c43"))));
    QCOMPARE(content->colors[3].name(), "Foliage");

    store().removeKey(swatchesKey);
    {
        const ZelColorSwatchListView untouched;
        const ZelColorSwatchListView edited;
        edited.swatchModel()->addColor(ZelColor());
    }
    const auto both = ZelSwatchStream::read(store().value(swatchesKey).toByteArray());
    QVERIFY(both);
    QCOMPARE(both->colors.size(), 25U);
}

void ColorListsTest::swatchesComeBack()
{
    store().setValue(swatchesKey, threeSwatches());
    store().setValue(QStringLiteral("legacy_color_handled"), true);
    {
        ZelColorSwatchListView view;
        QCOMPARE(names(view.swatchModel()->colors()), QStringLiteral(",Sky,"));
        QCOMPARE(view.swatchModel()->color(0), named("", 1, 0, 0));
    }
    // Looking at it doesn't write it.
    QCOMPARE(store().value(swatchesKey).toByteArray(), threeSwatches());
    ZelColorSwatchListView().addColor(named("Grün", 0, 1, 0));
    const QByteArray expected = Swatches()
                                    .add(2, named("", 1, 0, 0))
                                    .add(2, named("Sky", 0, 0, 1))
                                    .add(2, named("", 1, 1, 1))
                                    .add(2, named("Grün", 0, 1, 0))
                                    .bytes;
    const QByteArray written = store().value(swatchesKey).toByteArray();
    QCOMPARE(written.size(), expected.size());
    QCOMPARE(ColorSwatchModel().color(3), named("", 0, 1, 0));
    QCOMPARE(written.first(4), QByteArray("\0\0\0\x32", 4));
}

void ColorListsTest::oldWhitesGoOnce()
{
    store().setValue(swatchesKey, threeSwatches());
    QCOMPARE(ColorSwatchModel().rowCount(), 2);
    QVERIFY(store().value(QStringLiteral("legacy_color_handled")).toBool());
    ZelColorSwatchListView().addColor(ZelColor());
    QCOMPARE(ColorSwatchModel().rowCount(), 3);
}

void ColorListsTest::brokenSwatches_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("count");
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const auto swatches = [](int version, const ZelColor &color) {
        return Swatches().add(version, color).add(2, named("last", 0, 0, 0)).bytes;
    };
    QTest::newRow("text") << QVariant(QStringLiteral("swatches")) << 24;
    QTest::newRow("number") << QVariant(7) << 24;
    QTest::newRow("short") << QVariant(QByteArray("abc")) << 24;
    QTest::newRow("cut") << QVariant(threeSwatches().chopped(1)) << 2;
    QTest::newRow("infinite") << QVariant(swatches(2, {ZelColor::Space::XYZ, infinity, 0, 0})) << 1;
    QByteArray endless = threeSwatches();
    endless.replace(endless.size() - 4, 4, "\x7f\xff\xff\xf0");
    QTest::newRow("endless name") << QVariant(endless) << 2;
    QTest::newRow("unknown version")
        << QVariant(Swatches().bytes + QByteArray("\0\0\0\x03", 4) + threeSwatches().mid(4)) << 4;
}

void ColorListsTest::brokenSwatches()
{
    QFETCH(QVariant, stored);
    QFETCH(int, count);
    store().setValue(swatchesKey, stored);
    store().setValue(QStringLiteral("legacy_color_handled"), true);
    messages().expect(QtWarningMsg, QStringLiteral("Stored swatches can't be read in full"));
    {
        const ZelColorSwatchListView view;
        QCOMPARE(view.swatchModel()->rowCount(), count);
    }
    QCOMPARE(store().value(swatchesKey), stored);
    QVERIFY(!store().hasKey(unreadKey));

    messages().expect(QtWarningMsg, QStringLiteral("Stored swatches can't be read in full"));
    ZelColorSwatchListView().addColor(named("new", 0, 0, 1));
    QCOMPARE(store().value(unreadKey), stored);
    QCOMPARE(ColorSwatchModel().color(count).name(), "new");
}

void ColorListsTest::tornSwatchesNeverBecomeColors()
{
    const QByteArray whole = threeSwatches();
    constexpr int nameless = 28;
    const QList<qsizetype> ends{4, 4 + nameless, whole.size() - nameless - 4, whole.size()};
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const auto content = ZelSwatchStream::read(whole.first(size));
        QCOMPARE(content.has_value(), size >= 4);
        if (!content)
            continue;
        const auto complete =
            std::count_if(ends.begin() + 1, ends.end(), [=](qsizetype end) { return end <= size; });
        QCOMPARE(qsizetype(content->colors.size()), complete);
        QCOMPARE(content->isWhole, ends.contains(size));
    }
}

void ColorListsTest::swatchesFollowTheDisplay()
{
    ZelColorSwatchListView view;
    show(view);
    const auto shown = [&] {
        return view.viewport()->grab().toImage().pixelColor(middle(view, 0)).name();
    };
    const ZelColor color = view.swatchModel()->color(0);
    const QString before = shown();
    QCOMPARE(before, toDisplayQColor(color).name());
    ZelGammaPolicy::get()->setEnableGammaCorrection(false);
    QCOMPARE(shown(), QStringLiteral("#735244"));
    QVERIFY(before != shown());
    QCOMPARE(view.swatchModel()->color(0).components(), color.components());
}

void ColorListsTest::swatchesArePicked()
{
    ZelColorSwatchListView view;
    show(view);
    QSignalSpy picked(&view, &ZelColorSwatchListView::colorChanged);
    QSignalSpy taken(&view, &ZelColorSwatchListView::doubleClick);
    const auto last = [&] {
        return picked.last().first().value<ZelColor>().name();
    };

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 2));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(last(), "Blue sky");
    QTest::keyClick(&view, Qt::Key_Right);
    QCOMPARE(picked.count(), 1);
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(last(), "Foliage");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 4));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, middle(view, 4));
    QCOMPARE(taken.count(), 1);
    QCOMPARE(taken.first().first().value<ZelColor>().name(), "Blue flower");
}

void ColorListsTest::swatchesAreReadAloud()
{
    ZelColorSwatchListView view;
    show(view);
    QSignalSpy picked(&view, &ZelColorSwatchListView::colorChanged);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&view);
    QCOMPARE(list->childCount(), 24);
    QAccessibleInterface *last = list->child(23);
    QCOMPARE(last->text(QAccessible::Name), view.swatchModel()->text(23));
    QVERIFY(last->text(QAccessible::Name).startsWith(QStringLiteral("Black, #")));
    last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(picked.count(), 1);
    QVERIFY(last->state().selected && last->state().focused);
    QCOMPARE(list->focusChild(), last);
    QCOMPARE(last->parent(), list);
    const QPoint place = last->rect().center();
    QCOMPARE(list->indexOfChild(list->childAt(place.x(), place.y())), 23);
    view.deleteSelected();
    QVERIFY(!last->isValid() && last->state().invalid);
    QCOMPARE(last->text(QAccessible::Name), QString());
}

void ColorListsTest::swatchesAreDeleted()
{
    ZelColorSwatchListView view;
    show(view);
    ColorSwatchModel &model = *view.swatchModel();
    QCOMPARE(useMenu(view, middle(view, 1), QStringLiteral("Delete")),
             QStringList{QStringLiteral("Delete")});
    QCOMPARE(model.rowCount(), 23);
    QCOMPARE(model.color(1).name(), "Blue sky");

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, middle(view, 3));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, middle(view, 2));
    useMenu(view, middle(view, 5), QStringLiteral("Delete"));
    QCOMPARE(model.rowCount(), 22);
    useMenu(view, middle(view, 2), QStringLiteral("Delete"));
    QCOMPARE(model.rowCount(), 19);
    QCOMPARE(model.color(0).name(), "Blue sky");
    QCOMPARE(model.color(1).name(), "Bluish green");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(view, 1));
    QTest::keyClick(&view, Qt::Key_Delete);
    QCOMPARE(model.rowCount(), 18);

    const QPoint free = view.viewport()->rect().bottomRight() - QPoint(2, 2);
    QVERIFY(!view.indexAt(free).isValid());
    QCOMPARE(useMenu(view, free, {}).size(), 2);
}

void ColorListsTest::swatchesAreDropped()
{
    ZelColorSwatchListView view;
    show(view);
    ColorSwatchModel &model = *view.swatchModel();
    QVERIFY(drop(view, {5, 5}, dataOf(named("Own", 0.1F, 0.2F, 0.3F)).get()));
    QCOMPARE(model.rowCount(), 25);
    QCOMPARE(model.color(24).name(), "Own");
    QCOMPARE(model.color(24), named("", 0.1F, 0.2F, 0.3F));
    QVERIFY(!drop(view, {5, 5}, rawData(QStringLiteral("text/plain"), "#ff0000").get()));
    QVERIFY(!drop(view, {5, 5}, rawData(ZelMimeTypes::COLOR, "broken").get()));
    messages().expect(QtWarningMsg, QStringLiteral("aren't finite"));
    view.addColor({ZelColor::Space::Lab, 50, std::numeric_limits<float>::quiet_NaN(), 0});
    QCOMPARE(model.rowCount(), 25);
}

void ColorListsTest::palettes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    const QByteArray head = "GIMP Palette\n";
    QTest::newRow("usual") << head + "Name: Warm\nColumns: 4\n# note\n255   0  10\tDeep  red\n"
                                     "  0 128 255 Sky\n1 2 3\n"
                           << QStringLiteral("Warm|#ff000a Deep red|#0080ff Sky|#010203 ");
    QTest::newRow("windows") << QByteArray("\xEF\xBB\xBFGIMP Palette\r\n1 2 3\tA\r\n")
                             << QStringLiteral("|#010203 A");
    QTest::newRow("clamped") << head + "999 -5 0\tA" << QStringLiteral("|#ff0000 A");
    QTest::newRow("not colours") << head + "1 2\n1 2 x\n99999999999 1 1\n\n \n7 7 7 7\n"
                                 << QStringLiteral("|#070707 7");
    QTest::newRow("not UTF-8") << head + "1 2 3\t\xff" << QStringLiteral("|#010203 \uFFFD");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("another file") << QByteArray("RIFF\0PAL 1 2 3\n") << QString();
}

void ColorListsTest::palettes()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    const auto palette = ZelGplPalette::read(text);
    QCOMPARE(palette.has_value(), !expected.isEmpty());
    if (!palette)
        return;
    QStringList shown{palette->title};
    for (const auto &[color, name] : palette->entries)
        shown.append(color.name() + u' ' + name);
    QCOMPARE(shown.join(u'|'), expected);
    const auto again = ZelGplPalette::read(palette->write());
    QVERIFY(again && again->entries == palette->entries && again->title == palette->title);
}

void ColorListsTest::palettesKeepWhatIsShown()
{
    ZelColorSwatchListView view;
    ColorSwatchModel &model = *view.swatchModel();
    const QString path = folder() + QStringLiteral("/mine.gpl");
    QCOMPARE(view.exportPalette(path), QString());
    const auto file = writeFile(QStringLiteral("other.gpl"), "GIMP Palette\n128 64 32\tClay\n");
    QCOMPARE(view.importPalette(path), QString());
    QCOMPARE(view.importPalette(file), QString());
    QCOMPARE(model.rowCount(), 49);
    for (int row = 0; row < 24; ++row) {
        QCOMPARE(toDisplayQColor(model.color(24 + row)).name(),
                 toDisplayQColor(model.color(row)).name());
        QCOMPARE(model.color(24 + row).name(), model.color(row).name());
    }
    QCOMPARE(toDisplayQColor(model.color(48)).name(), QStringLiteral("#804020"));
    QVERIFY(toQColor(model.color(48)).name() != QStringLiteral("#804020"));

    for (const QString &bad : {writeFile(QStringLiteral("none.gpl"), "GIMP Palette\n"), folder()})
        QVERIFY(!view.importPalette(bad).isEmpty());
    QVERIFY(!view.exportPalette(folder()).isEmpty());
    QCOMPARE(model.rowCount(), 49);
}

void ColorListsTest::draggedColors()
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

void ColorListsTest::hostileData_data()
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

void ColorListsTest::hostileData()
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

void ColorListsTest::subColorsAreShown()
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

void ColorListsTest::subColorsMove_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("active");
    QTest::addColumn<QString>("expected");
    QTest::newRow("down") << 0 << 2 << 1 << QStringLiteral("[b]2c3a1d4");
    QTest::newRow("up") << 3 << 0 << 1 << QStringLiteral("d4a1[b]2c3");
    QTest::newRow("the active one") << 1 << 3 << 1 << QStringLiteral("a1c3d4[b]2");
    QTest::newRow("onto the active one") << 0 << 2 << 2 << QStringLiteral("b2[c]3a1d4");
    QTest::newRow("past the active one") << 2 << 1 << 1 << QStringLiteral("a1c3[b]2d4");
    QTest::newRow("nowhere") << 1 << 1 << 0 << QStringLiteral("[a]1b2c3d4");
    QTest::newRow("beyond") << 1 << 4 << 0 << QStringLiteral("[a]1b2c3d4");
}

void ColorListsTest::subColorsMove()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, active);
    QFETCH(QString, expected);
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

void ColorListsTest::subColorsAreDropped()
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

void ColorListsTest::activeSubColorIsTheCurrentRow()
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

void ColorListsTest::subColorsAreEdited()
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

void ColorListsTest::namesAreEditedInPlace()
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

void ColorListsTest::subColorsGoToTheLibrary()
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

void ColorListsTest::treeFollowsItsOwner()
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

ZEL_TEST_MAIN(ColorListsTest)
#include "tst_color_lists.moc"
