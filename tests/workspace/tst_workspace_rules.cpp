#include "TestCase.h"

#include "workspace/WorkSpaceComparison.h"
#include "workspace/WorkSpaceGeometry.h"
#include "workspace/WorkSpaceLayoutState.h"
#include "workspace/WorkSpaceNameChooser.h"
#include "workspace/WorkSpaceNames.h"
#include "workspace/WorkSpaceRecord.h"
#include "workspace/WorkSpaceRibbonRules.h"
#include "workspace/WorkSpaceTabOrder.h"

#include <ZelCore/splitTrailingNumber>

#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>
#include <functional>

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class TestWorkspaceRules : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void splitsTrailingNumbers_data();
    void splitsTrailingNumbers();
    void choosesIds();
    void proposesNames();
    void namesImports_data();
    void namesImports();
    void namesManyImports();
    void filtersNames();
    void placesOnScreens_data();
    void placesOnScreens();
    void findsTargets();
    void ranksTabs_data();
    void ranksTabs();
    void showsRibbonButtons_data();
    void showsRibbonButtons();
    void thinsOutSeparators();
    void comparesArrangements_data();
    void comparesArrangements();
    void structureIsWithoutPlaces();
};

void TestWorkspaceRules::splitsTrailingNumbers_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<int>("number");
    QTest::newRow("Studio 12") << QStringLiteral("Studio ") << 12;
    QTest::newRow("Studio") << QStringLiteral("Studio") << -1;
    QTest::newRow("7") << QString() << 7;
    QTest::newRow("A007") << QStringLiteral("A00") << 7;
    QTest::newRow("A0") << QStringLiteral("A") << 0;
    QTest::newRow("") << QString() << -1;
    QTest::newRow("A12345678901234567890") << QStringLiteral("A12345678901") << 234567890;
}

void TestWorkspaceRules::splitsTrailingNumbers()
{
    const auto split = splitTrailingNumber(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(split.stem, "stem");
    QTEST(split.number.value_or(-1), "number");
}

void TestWorkspaceRules::choosesIds()
{
    QCOMPARE(WorkSpaceNames::freeId({}), QStringLiteral("wsid1"));
    QCOMPARE(WorkSpaceNames::freeId(words("wsid1 wsid3 defWorkSpace2")), QStringLiteral("wsid2"));
    QCOMPARE(WorkSpaceNames::exportedId(QStringLiteral("wsid1")), QStringLiteral("Expwsid1"));
    QCOMPARE(WorkSpaceNames::exportedId(QStringLiteral("myExp1")), QStringLiteral("myExp1"));
    QStringList ids = words("defWorkSpace10 wsid1 defWorkSpace9 defWorkSpace");
    std::sort(ids.begin(), ids.end(), WorkSpaceNames::isIdLess);
    QCOMPARE(ids, words("defWorkSpace defWorkSpace9 defWorkSpace10 wsid1"));
}

void TestWorkspaceRules::proposesNames()
{
    QStringList names{QStringLiteral("Workspace 2")};
    for (const char *expected : {"Workspace", "Workspace 1", "Workspace 3"}) {
        names.append(WorkSpaceNames::proposedName(names));
        QCOMPARE(names.last(), QString::fromLatin1(expected));
    }
}

void TestWorkspaceRules::namesImports_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(expected);
    };
    row("New", "New");
    row("", "Imported");
    row("   ", "Imported");
    row("Studio", "Studio1");
    row("Shot 9", "Shot 12");
    row("A name of twenty two c", "A name of twenty two");
    row("exactly twenty chars", "exactly twenty char1");
}

void TestWorkspaceRules::namesImports()
{
    QFETCH(QString, name);
    const QStringList taken{QStringLiteral("Studio"), QStringLiteral("Shot 9"),
                            QStringLiteral("Shot 10"), QStringLiteral("Shot 11"),
                            QStringLiteral("exactly twenty chars")};
    QTEST(WorkSpaceNames::importedName(name, taken), "expected");
}

/// Each is the one that it would be if it came alone, whatever was given out before.
void TestWorkspaceRules::namesManyImports()
{
    QStringList ids = words("wsid2 wsid4");
    QStringList names = words("Shot Shot3 Shot7");
    WorkSpaceNameChooser chooser(ids, names);
    const QStringList wanted =
        words("Shot Shot2 Shot Take Shot3 Take1 Shot7 Take Shot Shot2 Take1") +
        QStringList(9, QStringLiteral("exactly twenty chars")) +
        QStringList(12, QStringLiteral("exactly twenty char1"));
    for (const QString &name : wanted) {
        ids.append(WorkSpaceNames::freeId(ids));
        QCOMPARE(chooser.takeId(), ids.last());
        names.append(WorkSpaceNames::importedName(name, names));
        QCOMPARE(chooser.takeName(name), names.last());
    }
    QCOMPARE(names.mid(3, 4), words("Shot1 Shot2 Shot4 Take"));
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

void TestWorkspaceRules::filtersNames()
{
    const QString page = QStringLiteral("Scene: Lights/2_b");
    const QString name = WorkSpaceNames::filtered(page);
    QCOMPARE(name, QStringLiteral("Scene__Lights_2_b"));
    QCOMPARE(WorkSpaceNames::filtered(name), name);
}

void TestWorkspaceRules::placesOnScreens_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("oldScreen");
    QTest::addColumn<QRect>("expected");
    const QRect same(0, 0, 1920, 1080);
    const QRect second(1920, 0, 1280, 1024);
    QTest::newRow("as it was") << QRect(100, 50, 300, 400) << same << QRect(100, 50, 300, 400);
    QTest::newRow("half outside, can be taken")
        << QRect(1800, 900, 300, 400) << same << QRect(1800, 900, 300, 400);
    QTest::newRow("top out of sight")
        << QRect(100, -50, 300, 400) << same << QRect(100, 24, 300, 400);
    QTest::newRow("screen gone") << QRect(2020, 100, 300, 400) << second
                                 << QRect(100, 100, 300, 400);
    QTest::newRow("outside of smaller")
        << QRect(3000, 900, 300, 400) << QRect(1920, 0, 2560, 1440) << QRect(1080, 680, 300, 400);
    QTest::newRow("larger than the screen")
        << QRect(1920, 0, 2560, 1440) << QRect(1920, 0, 2560, 1440) << QRect(0, 24, 1920, 1056);
    QTest::newRow("screen not known")
        << QRect(5000, 5000, 300, 400) << QRect() << QRect(1620, 680, 300, 400);
    QTest::newRow("empty") << QRect() << second << QRect();
}

void TestWorkspaceRules::placesOnScreens()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, oldScreen);
    const WorkSpaceGeometry::Screen today{QRect(0, 0, 1920, 1080), QRect(0, 24, 1920, 1056)};
    QTEST(WorkSpaceGeometry::placed(rect, oldScreen, today), "expected");
}

void TestWorkspaceRules::findsTargets()
{
    const QRect rect(1, 2, 30, 40);
    const QRect first(0, 0, 100, 100);
    const QRect second(100, 0, 100, 100);
    WorkSpaceRecord record;
    record.screens = {first, second};
    record.tornOutNames = words("a b");
    record.tornOutRects = {rect, rect};
    record.tornOutScreens = {1, -1};
    record.dockNames = words("c d");
    record.dockRects = {rect, rect};
    record.dockScreens = {1, 7};
    const QString a = QStringLiteral("a");
    const QString c = QStringLiteral("c");
    auto targets = WorkSpaceGeometry::targetsOf(record, 2);
    QCOMPARE(targets.size(), 4);
    QVERIFY(targets[0] == (WorkSpaceGeometry::Target{a, rect, second, 1, true}));
    QVERIFY(targets[1].oldScreen.isNull() && targets[3].oldScreen.isNull());
    record.tornOutScreens.removeLast();
    targets = WorkSpaceGeometry::targetsOf(record, 1);
    QCOMPARE(targets.size(), 2);
    QVERIFY(targets[0] == (WorkSpaceGeometry::Target{c, rect, second, 0, false}));
    QVERIFY(WorkSpaceGeometry::placed(targets[0], {}).isEmpty());
}

void TestWorkspaceRules::ranksTabs_data()
{
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *pages, const char *wanted,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(pages) << QString::fromLatin1(wanted)
                            << QString::fromLatin1(expected);
    };
    row("nothing wanted", "c a b", "", "c a b");
    row("all wanted", "a b c", "c a b", "c a b");
    row("unknown go last", "x a y b", "b a", "b a x y");
    row("torn out are wanted", "a b", "b z a", "b a");
    row("wanted twice", "a b", "b a b", "b a");
    row("same name", "a b a", "a b", "a a b");
}

void TestWorkspaceRules::ranksTabs()
{
    QFETCH(QString, pages);
    QFETCH(QString, wanted);
    const QStringList names = pages.split(u' ');
    const auto ranks = WorkSpaceTabOrder::ranks(names, wanted.split(u' ', Qt::SkipEmptyParts));
    QStringList result;
    for (const int index : WorkSpaceTabOrder::sorted(ranks))
        result.append(names[index]);
    QTEST(result.join(u' '), "expected");
}

void TestWorkspaceRules::showsRibbonButtons_data()
{
    QTest::addColumn<QString>("visible");
    QTest::addColumn<QString>("hidden");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *visible, const char *hidden,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(visible) << QString::fromLatin1(hidden)
                            << QString::fromLatin1(expected);
    };
    row("nothing told", "", "", "");
    row("told visible only", "GPU", "", "GPU");
    row("unknown shows", "GPU", "Denoise", "Script GPU StudiosTggl Studios");
    row("old workspace", "", "Denoise", "GPU StudiosTggl Studios");
    row("studios hidden", "GPU StudiosTggl", "Studios", "Script GPU Denoise");
}

void TestWorkspaceRules::showsRibbonButtons()
{
    QFETCH(QString, visible);
    QFETCH(QString, hidden);
    const auto list = [](const QString &text) {
        return text.split(u' ', Qt::SkipEmptyParts);
    };
    const WorkSpaceRibbonRules::Buttons buttons(list(visible), list(hidden));
    QStringList shown;
    for (const QString &id : words("Script GPU StudiosTggl Denoise Studios")) {
        const QString name = QStringLiteral("Ribbon") + id;
        QCOMPARE(WorkSpaceRibbonRules::idOf(name), id);
        if (buttons.isVisible(name))
            shown.append(id);
    }
    QTEST(shown.join(u' '), "expected");
}

void TestWorkspaceRules::thinsOutSeparators()
{
    // A bar as text: "|" a separator, "b" a visible button, "h" a hidden one.
    const auto thin = [](const char *bar) {
        QList<WorkSpaceRibbonRules::BarItem> items;
        for (const char item : QByteArray(bar))
            items.append({item == '|', item == 'b'});
        QString result;
        for (const bool isVisible : WorkSpaceRibbonRules::visibleItems(items))
            result.append(isVisible ? u'1' : u'0');
        return result;
    };
    QCOMPARE(thin("b||b"), QStringLiteral("1101"));
    QCOMPARE(thin("b|h|hb|"), QStringLiteral("1100011"));
    QCOMPARE(thin("||"), QStringLiteral("10"));
}

using Change = std::function<void(WorkSpaceRecord &)>;
Q_DECLARE_METATYPE(Change)

void TestWorkspaceRules::comparesArrangements_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isSame");
    const auto row = [](const char *name, bool isSame, const Change &change) {
        QTest::newRow(name) << change << isSame;
    };
    row("nothing", true, [](WorkSpaceRecord &) {});
    row("another tab", true, [](WorkSpaceRecord &r) {
        r.libraryTabIndex = 3;
        r.tabWidgetIndices = {2};
        r.sceneSubTabText = QStringLiteral("Two");
    });
    row("other order of docks", true, [](WorkSpaceRecord &r) {
        std::reverse(r.dockNames.begin(), r.dockNames.end());
        std::reverse(r.dockRects.begin(), r.dockRects.end());
    });
    row("another size of the window", true, [](WorkSpaceRecord &r) {
        r.mainWindowGeometry = QRect(0, 0, 500, 400);
        r.dockRects[0] = QRect(0, 0, 10, 10);
        r.mainWindowState = "other";
    });
    row("a moved window", true, [](WorkSpaceRecord &r) { r.mainWindowGeometry.translate(10, 10); });
    row("another screen", true, [](WorkSpaceRecord &r) {
        r.screens = {QRect(0, 0, 800, 600)};
        r.tornOutRects[0] = QRect(0, 0, 10, 10);
        r.tornOutScreens[0] = -1;
    });
    row("a dock gone", false, [](WorkSpaceRecord &r) {
        r.mainWindowGeometry = QRect(0, 0, 500, 400);
        r.dockNames.removeLast();
        r.dockRects.removeLast();
        r.dockScreens.removeLast();
    });
    row("another layout", false, [](WorkSpaceRecord &r) { r.mainWindowState = "other"; });
    row("swapped docks", false,
        [](WorkSpaceRecord &r) { std::reverse(r.dockRects.begin(), r.dockRects.end()); });
    row("another order of tabs", false, [](WorkSpaceRecord &r) {
        std::reverse(r.libraryTabOrder.begin(), r.libraryTabOrder.end());
    });
    row("a moved page", false, [](WorkSpaceRecord &r) { r.tornOutRects[0].translate(1, 0); });
    row("a hidden button", false,
        [](WorkSpaceRecord &r) { r.hiddenRibbonIds.append(QStringLiteral("GPU")); });
}

void TestWorkspaceRules::structureIsWithoutPlaces()
{
    QMainWindow window;
    QList<QDockWidget *> docks;
    for (const QString &name : words("A B C")) {
        docks.append(new QDockWidget(name));
        docks.last()->setObjectName(name);
        window.addDockWidget(Qt::LeftDockWidgetArea, docks.last());
    }
    window.tabifyDockWidget(docks[1], docks[2]);
    window.resize(600, 500);
    window.show();
    const auto structure = [&window] {
        return WorkSpaceLayoutState::structure(window.saveState());
    };
    const QByteArray before = structure();
    const QByteArray state = window.saveState();
    QVERIFY(!before.isEmpty());
    window.resize(900, 700);
    window.resizeDocks({docks[0]}, {300}, Qt::Horizontal);
    QCOMPARE(structure(), before);
    QVERIFY(window.saveState() != state);
    docks[0]->setFloating(true);
    const QByteArray floating = structure();
    QVERIFY(floating != before);
    docks[0]->move(docks[0]->pos() + QPoint(30, 30));
    QCOMPARE(structure(), floating);
    docks[1]->raise();
    QVERIFY(structure() != floating);
    QVERIFY(WorkSpaceLayoutState::structure(state.chopped(state.size() / 2)).isEmpty());
}

void TestWorkspaceRules::comparesArrangements()
{
    QFETCH(Change, change);
    WorkSpaceRecord record;
    record.mainWindowState = "state";
    record.mainWindowGeometry = QRect(0, 0, 900, 700);
    record.screens = {QRect(0, 0, 1600, 1200)};
    record.libraryTabOrder = words("L1 L2");
    record.tornOutNames = words("P1");
    record.tornOutRects = {QRect(10, 10, 200, 100)};
    record.tornOutScreens = {0};
    record.tabWidgetNames = words("Nested");
    record.tabWidgetIndices = {0};
    record.dockNames = words("Log Scene");
    record.dockRects = {QRect(0, 0, 100, 100), QRect(0, 100, 100, 200)};
    record.dockScreens = {0, 0};
    const QByteArray before = record.write();
    change(record);
    const QByteArray after = record.write();
    QTEST(WorkSpaceComparison::isSameArrangement(before, after), "isSame");
    QVERIFY(!WorkSpaceComparison::isSameArrangement(before.chopped(1), after));
}

ZEL_TEST_MAIN(TestWorkspaceRules)
#include "tst_workspace_rules.moc"
