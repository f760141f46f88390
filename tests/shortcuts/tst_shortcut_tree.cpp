#include "RegistryTestCase.h"

#include <ZelCore/ZelSettings>

class ShortcutTreeTest : public RegistryTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeShowsCategoriesInOrder();
    void rowsShowCleanTexts_data();
    void rowsShowCleanTexts();
    void keysAreShownInFull_data();
    void keysAreShownInFull();
    void theTreeIsWrittenBack();
};

void ShortcutTreeTest::theTreeShowsCategoriesInOrder()
{
    registry().getShortcutInfo(QStringLiteral("zoo.x"));
    registry().getShortcutInfo(QStringLiteral("cam.deep.x"));
    registry().getShortcutInfo(QStringLiteral("nodot"));
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    QStringList rows;
    for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
        const auto *item = static_cast<ZelShortcutTreeItem *>(*it);
        int category = -1;
        if (item->isShortcutItem())
            continue;
        QVERIFY(!item->isMouseShortcut(&category));
        rows += QString((*it)->parent() ? 1 : 0, u' ') + item->id() + u' ' + item->text(0);
    }
    const QString expected = QStringLiteral("cam Camera\n"
                                            " cam#ctrl Camera Control\n"
                                            " cam#view Standard Views\n"
                                            "edit Edit\n"
                                            " edit#geo Add Geometry\n"
                                            " edit#light Add Light\n"
                                            "env Environment\n"
                                            " env#bGrnd Background\n"
                                            "file File\n"
                                            "gen General\n"
                                            "if Interface\n"
                                            " if#mouse Mouse Settings\n"
                                            "mat Materials\n"
                                            " mat#graph Material Graph\n"
                                            "rt Real-time\n"
                                            "ani Animation\n"
                                            "matXcopy Material Copy");
    QCOMPARE(rows.join(u'\n'), expected);
    QVERIFY(!itemOf(tree, QStringLiteral("zoo.x")));
    QVERIFY(!itemOf(tree, QStringLiteral("nodot")));
    QCOMPARE(itemOf(tree, QStringLiteral("cam.deep.x"))->parent()->text(0),
             QStringLiteral("Camera"));
    int category = -1;
    QVERIFY(itemOf(tree, QStringLiteral("cam#ctrl.cvDolly"))->isMouseShortcut(&category));
    QCOMPARE(category, 1);
    QVERIFY(!itemOf(tree, QStringLiteral("mat#graph.c_Ribbon"))->isMouseShortcut(nullptr));
}

void ShortcutTreeTest::rowsShowCleanTexts_data()
{
    QTest::addColumn<QString>("internal");
    QTest::addColumn<QString>("clean");
    QTest::addColumn<QString>("shownText");

    QTest::newRow("plain") << "Open"
                           << "Open"
                           << "Open";
    QTest::newRow("menu") << "&Save && Close..."
                          << "Save & Close"
                          << "&Save && Close...";
    QTest::newRow("only marks") << "&&&..."
                                << "&"
                                << "&&&...";
    QTest::newRow("key") << "Ctrl+Shift+A"
                         << "Ctrl+Shift+A"
                         << "Ctrl+Shift+A";
    QTest::newRow("lower case") << "ctrl+a"
                                << "ctrl+a"
                                << "Ctrl+A";
    QTest::newRow("bare modifier") << "Ctrl+"
                                   << "Ctrl+"
                                   << "Ctrl+";
    QTest::newRow("gesture") << "!#MD#LMB#!#"
                             << "!#MD#LMB#!#"
                             << "LMB Drag";
    QTest::newRow("broken gesture") << "!#XX#LMB#!#"
                                    << "!#XX#LMB#!#"
                                    << "";
}

void ShortcutTreeTest::rowsShowCleanTexts()
{
    QFETCH(QString, internal);
    QFETCH(QString, clean);
    QFETCH(QString, shownText);
    QTreeWidget tree;
    tree.setColumnCount(4);
    auto *category = new ZelShortcutTreeItem(&tree, QStringLiteral("gen"), internal);
    auto *item = new ZelShortcutTreeItem(category, QStringLiteral("gen.x"), internal);
    QCOMPARE(category->text(0), clean);
    QCOMPARE(item->text(0), clean);
    item->setShortcut(internal);
    item->setDefaultShortCut(internal);
    QCOMPARE(item->shortcutInternalText(), internal);
    QCOMPARE(item->defaultShortcutInternalText(), internal);
    QCOMPARE(item->shortcutPublicText(), shownText);
    QCOMPARE(item->text(3), shownText);
}

void ShortcutTreeTest::keysAreShownInFull_data()
{
    QTest::addColumn<QString>("portable");
    QTest::addColumn<QString>("longName");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("order") << "Ctrl+Shift+Alt+Meta+A"
                           << "Meta+Alt+Shift+Ctrl+A";
    QTest::newRow("four") << "A, Ctrl+B, Shift+C, Del"
                          << "A, Ctrl+B, Shift+C, Del";
    QTest::newRow("plus") << "Ctrl++"
                          << "Ctrl++";
}

void ShortcutTreeTest::keysAreShownInFull()
{
    QFETCH(QString, portable);
    QFETCH(QString, longName);
    QCOMPARE(ZelShortcutTreeItem::convertPortableToLongName(portable), longName);
}

void ShortcutTreeTest::theTreeIsWrittenBack()
{
    registry().registerShortcut(QStringLiteral("gen.x"), QStringLiteral("X"), QStringLiteral("F2"));
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    itemOf(tree, QStringLiteral("gen.x"))->setShortcut(QStringLiteral("F3"));
    auto *added = new ZelShortcutTreeItem(itemOf(tree, QStringLiteral("gen")),
                                          QStringLiteral("gen.added"), QStringLiteral("&Added"));
    added->setShortcut(QStringLiteral("F4"));
    ZelShortcutGuiHelper::applyChanges(nullptr);
    QVERIFY(ZelSettings(QStringLiteral("shortcutSettings")).keys().isEmpty());
    QCOMPARE(registry().getShortcutInfo(QStringLiteral("gen.x")), QStringLiteral("F2"));

    const auto before = entries();
    ZelShortcutGuiHelper::applyChanges(&tree);
    auto expected = before;
    expected[QStringLiteral("gen.x")].key = QStringLiteral("F3");
    expected[QStringLiteral("gen.added")] = {QStringLiteral("Added"), QStringLiteral("F4"), {}, 3};
    QCOMPARE(entries(), expected);
    const ZelSettings store(QStringLiteral("shortcutSettings"));
    QCOMPARE(store.value(QStringLiteral("genQQQx")).toString(), QStringLiteral("F3"));
    QCOMPARE(store.value(QStringLiteral("matZZZgraphQQQc_Ribbon")).toString(), QStringLiteral("R"));
    // Rows of categories don't become ids.
    QCOMPARE(store.keys().size(), expected.size());
}

ZEL_TEST_MAIN(ShortcutTreeTest)
#include "tst_shortcut_tree.moc"
