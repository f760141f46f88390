#include "ColorListInput.h"
#include "color/ZelGplPalette.h"
#include "color/ZelSwatchStream.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelMimeTypes>
#include <ZelCore/ZelSettings>
#include <ZelWidgets/ColorSwatchModel>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorSwatchListView>

#include <QAccessible>
#include <QSignalSpy>

#include <limits>

namespace {

const QString swatchesKey = QStringLiteral("swatches");
const QString unreadKey = QStringLiteral("swatches_unread");

ZelSettings store()
{
    return ZelSettings(QStringLiteral("colordialog"));
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

} // namespace

class SwatchesTest : public TestCase
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
};

void SwatchesTest::cleanup()
{
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    TestCase::cleanup();
}

void SwatchesTest::firstRunShowsTheChart()
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

void SwatchesTest::swatchesComeBack()
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

void SwatchesTest::oldWhitesGoOnce()
{
    store().setValue(swatchesKey, threeSwatches());
    QCOMPARE(ColorSwatchModel().rowCount(), 2);
    QVERIFY(store().value(QStringLiteral("legacy_color_handled")).toBool());
    ZelColorSwatchListView().addColor(ZelColor());
    QCOMPARE(ColorSwatchModel().rowCount(), 3);
}

void SwatchesTest::brokenSwatches_data()
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

void SwatchesTest::brokenSwatches()
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

void SwatchesTest::tornSwatchesNeverBecomeColors()
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

void SwatchesTest::swatchesFollowTheDisplay()
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

void SwatchesTest::swatchesArePicked()
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

void SwatchesTest::swatchesAreReadAloud()
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

void SwatchesTest::swatchesAreDeleted()
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

void SwatchesTest::swatchesAreDropped()
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

void SwatchesTest::palettes_data()
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

void SwatchesTest::palettes()
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

void SwatchesTest::palettesKeepWhatIsShown()
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

ZEL_TEST_MAIN(SwatchesTest)
#include "tst_swatches.moc"
