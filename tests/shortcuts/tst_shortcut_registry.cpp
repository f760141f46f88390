#include "RegistryTestCase.h"

#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelHotKeyMaterials>
#include <ZelWidgets/ZelShortcut>

#include <QAction>
#include <QPointer>

class ShortcutRegistryTest : public RegistryTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anIdIsEnteredByItsCategory_data();
    void anIdIsEnteredByItsCategory();
    void theFirstKeyIsTheDefault();
    void theLongestTextOfTheStartIsKept();
    void aFixedNameBeatsAllTexts();
    void askingForAnUnknownIdEntersIt();
    void laterViewsAreRegistered_data();
    void laterViewsAreRegistered();
    void theRegistryComesUpUnprepared();
    void aNewRegistryStartsFromTheDefaults();
    void theFirstLiveObjectIsFound();
    void changesReachAllLiveObjects();
    void deadObjectsAreDropped();
    void manyLiveObjectsAreWarnedAbout();
    void materialNamesInAnyScriptGiveIds_data();
    void materialNamesInAnyScriptGiveIds();
    void aMaterialsHotKeyIsRenamed();
    void aMaterialsHotKeyGivesWayToAnother();
    void removingAHotKeyForgetsIt();

private:
    static void change(const QString &id, const QString &key);
};

/// Rebinds as an editor does.
void ShortcutRegistryTest::change(const QString &id, const QString &key)
{
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    itemOf(tree, id)->setShortcut(key);
    ZelShortcutGuiHelper::applyChanges(&tree);
}

void ShortcutRegistryTest::anIdIsEnteredByItsCategory_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("given");
    QTest::addColumn<bool>("entered");

    QTest::newRow("category") << "cam.x"
                              << "Ctrl+U"
                              << "Ctrl+U" << true;
    QTest::newRow("sub-category") << "cam#ctrl.x"
                                  << "U"
                                  << "U" << true;
    QTest::newRow("escape") << "cam.x"
                            << "Esc"
                            << "" << true;
    QTest::newRow("no dot") << "camx"
                            << "U"
                            << "U" << false;
    QTest::newRow("no dot, escape") << "camx"
                                    << "Esc"
                                    << "Esc" << false;
    QTest::newRow("unknown category") << "zoo.x"
                                      << "U"
                                      << "U" << false;
    QTest::newRow("unknown category, escape") << "zoo.x"
                                              << "Esc"
                                              << "" << false;
    QTest::newRow("dot in the category") << "cam.y.x"
                                         << "U"
                                         << "U" << false;
    QTest::newRow("other case") << "Cam.x"
                                << "U"
                                << "U" << false;
    QTest::newRow("quotes") << "cam.\"'\\"
                            << "U"
                            << "U" << true;
    QTest::newRow("long") << QStringLiteral("cam.") + QString(10000, u'x') << "U"
                          << "U" << true;
}

void ShortcutRegistryTest::anIdIsEnteredByItsCategory()
{
    QFETCH(QString, id);
    QFETCH(QString, key);
    QFETCH(QString, given);
    QFETCH(bool, entered);
    QCOMPARE(registry().registerShortcut(id, QStringLiteral("Text"), key), given);
    QCOMPARE(registry().hasDefaultShortcut(id), entered);
    QCOMPARE(registry().getShortcutInfo(id), entered ? given : QString());
    registry().storeSettings();
    restart();
    registry().registerShortcut(id, {}, QStringLiteral("Z"));
    registry().restoreSettings();
    QCOMPARE(registry().getShortcutInfo(id), entered ? given : QString());
}

void ShortcutRegistryTest::theFirstKeyIsTheDefault()
{
    const QString id = QStringLiteral("gen.x");
    registry().registerKeyShortcut(id, {}, Qt::CTRL | Qt::Key_U);
    QCOMPARE(registry().registerShortcut(id, {}, QStringLiteral("V")), QStringLiteral("Ctrl+U"));
    change(id, QStringLiteral("W"));
    QVERIFY(!registry().hasDefaultShortcut(id));
    QCOMPARE(registry().registerShortcut(id, {}, QStringLiteral("V")), QStringLiteral("W"));
    QCOMPARE(entries().value(id).defaultKey, QStringLiteral("Ctrl+U"));
}

void ShortcutRegistryTest::theLongestTextOfTheStartIsKept()
{
    const QString id = QStringLiteral("gen.x");
    const auto announce = [&id](const char *text) {
        registry().registerShortcut(id, QString::fromLatin1(text), {});
        return entries().value(id).text;
    };
    QCOMPARE(announce("Frame"), QStringLiteral("Frame"));
    QCOMPARE(announce("Frame all"), QStringLiteral("Frame all"));
    QCOMPARE(announce("Fit all!!"), QStringLiteral("Frame all"));
    registry().setSystemInitialized(nullptr);
    QVERIFY(registry().systemInitialized());
    QCOMPARE(announce("Frame everything"), QStringLiteral("Frame all"));
    QCOMPARE(announce("F"), QStringLiteral("Frame all"));
}

void ShortcutRegistryTest::aFixedNameBeatsAllTexts()
{
    const QString id = QStringLiteral("if.hFullScreenTggl");
    registry().registerShortcut(id, QStringLiteral("Toggle the full screen of the window"), {});
    registry().registerShortcut(id, QStringLiteral("An even longer text of the full screen"), {});
    QCOMPARE(entries().value(id).text, QStringLiteral("Full Screen"));
}

void ShortcutRegistryTest::askingForAnUnknownIdEntersIt()
{
    const QString id = QStringLiteral("gen.asked");
    QVERIFY(!registry().hasDefaultShortcut(id));
    QCOMPARE(registry().getShortcutInfo(id), QString());
    const ShownShortcut expected{{}, {}, {}, 3};
    QCOMPARE(entries().value(id), expected);
}

void ShortcutRegistryTest::laterViewsAreRegistered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");

    const auto row = [](const char *id, const char *text, const char *key) {
        QTest::newRow(id) << QString::fromLatin1(text) << QString::fromLatin1(key);
    };
    row("mat#graph.a_MatProperties", "Material Properties", "Space");
    row("mat#graph.b_MatTexture", "Materials and Textures", "M");
    row("mat#graph.c_Ribbon", "Show/Hide Ribbon", "R");
    row("mat#graph.e_PreviewCol", "Preview Color", "C");
    row("mat#graph.f_PreviewAlpha", "Preview Alpha", "A");
    row("mat#graph.g_PreviewBump", "Preview Bump", "B");
    row("mat#graph.h_StopPreview", "Stop Preview", "X");
    row("mat#graph.qClearSelection", "Clear Selection", "");
    row("mat#graph.qDuplicateSelection", "Duplicate Selection", "");
    row("mat#graph.qSelectAllSelection", "Select All", "Ctrl+A");
    row("mat.dMultiMatCycle", "Cycle Sub-Materials", "Shift+B");
    row("mat#graph.d_ExecGeometryShaders", "Execute Geometry Nodes", "Alt+G");
    row("mat#graph.d_GraphScreenshot", "Save Graph Screenshot", "");
    row("edit#geo.aAddGrndPln", "Add Ground Plane", "Ctrl+G");
    row("edit#geo.model0", "Model 1", "Ctrl+1");
    row("edit#geo.model8", "Model 9", "Ctrl+9");
    row("edit#geo.model9", "Model 0", "Ctrl+0");
}

void ShortcutRegistryTest::laterViewsAreRegistered()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    const ShownShortcut expected{text, key, key, 3};
    QCOMPARE(entries().value(QString::fromLatin1(QTest::currentDataTag())), expected);
}

void ShortcutRegistryTest::theRegistryComesUpUnprepared()
{
    ZelShortcutHandler::destroy();
    messages().expect(QtWarningMsg, QStringLiteral("ZelShortcutHandler::prepareInstance was not"));
    QCOMPARE(registry().getShortcutInfo(QStringLiteral("mat#graph.c_Ribbon")), QStringLiteral("R"));
    ZelShortcutHandler::prepareInstance();
    QVERIFY(registry().hasDefaultShortcut(QStringLiteral("cam#ctrl.aTumble")));
}

void ShortcutRegistryTest::aNewRegistryStartsFromTheDefaults()
{
    const auto before = entries();
    change(QStringLiteral("cam#ctrl.bPan"), QStringLiteral("!#MD#RMB#!#"));
    ViewCtrl::Settings::instance()->setViewMode(ViewCtrl::ViewMode::Mode4);
    restart();
    QCOMPARE(entries(), before);
    registry().resetAllOnlyCallThisFromAutoTests();
    QVERIFY(entries().isEmpty());
}

void ShortcutRegistryTest::theFirstLiveObjectIsFound()
{
    const QString id = QStringLiteral("gen.x");
    QWidget window;
    auto *qAction = new QAction(&window);
    const ZelAction action(id, qAction, &window);
    auto *shortcut = new ZelShortcut(id, QStringLiteral("Text"), Qt::Key_F2, &window);
    QCOMPARE(registry().findShortcut(id), &action);
    QVERIFY(registry().isLivingZelShortcut(*qAction));
    delete shortcut;
    QVERIFY(!registry().isLivingZelShortcut(*qAction));
    QVERIFY(!registry().isLivingZelShortcut(QAction()));
    delete qAction;
    QVERIFY(!registry().findShortcut(id));
    QVERIFY(!registry().findShortcut(QString()));
}

void ShortcutRegistryTest::changesReachAllLiveObjects()
{
    const QString id = QStringLiteral("gen.x");
    QWidget window;
    const ZelAction action(id, QStringLiteral("Text"), Qt::Key_F2, &window);
    ZelShortcut shortcut(id, QStringLiteral("Text"), Qt::Key_F3, &window);
    QCOMPARE(shortcut.key(), QKeySequence(Qt::Key_F2));
    change(id, QStringLiteral("Ctrl+K, Ctrl+M"));
    QCOMPARE(action.qAction()->shortcut(),
             QKeySequence(Qt::CTRL | Qt::Key_K, Qt::CTRL | Qt::Key_M));
    change(id, {});
    QCOMPARE(action.qAction()->shortcut(), QKeySequence());
    QCOMPARE(shortcut.key(), QKeySequence());
}

void ShortcutRegistryTest::deadObjectsAreDropped()
{
    QWidget window;
    auto *shortcut = new ZelShortcut(QStringLiteral("gen.x"), {}, Qt::Key_F2, &window);
    auto *qAction = new QAction(&window);
    const ZelAction action(QStringLiteral("gen.y"), qAction, &window);
    delete qAction;
    delete shortcut;
    registry().applyCurrentSettingsToShortcuts();
    QVERIFY(!registry().findShortcut(QStringLiteral("gen.x")));
    QVERIFY(!registry().findShortcut(QStringLiteral("gen.y")));
    QCOMPARE(entries().value(QStringLiteral("gen.x")).key, QStringLiteral("F2"));
}

void ShortcutRegistryTest::manyLiveObjectsAreWarnedAbout()
{
    const QString warning = QStringLiteral("Clean limit (or other) issue in ZelShortcuthandler");
    QWidget window;
    for (int i = 0; i < 1200; ++i)
        delete new ZelShortcut(QStringLiteral("gen.x"), {}, {}, &window);
    QVERIFY(messages().messages(QtWarningMsg).isEmpty());
    registry().applyCurrentSettingsToShortcuts();
    const int living = 24;
    for (int i = living; i < 1002; ++i) {
        if (i == 1001)
            messages().expect(QtWarningMsg, warning);
        new ZelShortcut(QStringLiteral("gen.x"), {}, {}, &window);
    }
    QCOMPARE(messages().messages(QtWarningMsg).size(), 1);
}

void ShortcutRegistryTest::materialNamesInAnyScriptGiveIds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("id");

    QTest::newRow("latin") << "Red"
                           << "matXcopy.526564";
    QTest::newRow("empty") << ""
                           << "matXcopy.";
    QTest::newRow("umlauts") << QStringLiteral("Größe") << "matXcopy.4772c3b6c39f65";
    QTest::newRow("cyrillic") << QStringLiteral("Я") << "matXcopy.d0af";
    QTest::newRow("arabic") << QStringLiteral("لون") << "matXcopy.d984d988d986";
    QTest::newRow("chinese") << QStringLiteral("红") << "matXcopy.e7baa2";
    QTest::newRow("beyond the plane") << QStringLiteral("🎨") << "matXcopy.f09f8ea8";
    QTest::newRow("marks") << "a.b#c QQQ ZZZ"
                           << "matXcopy.612e622363205151512"
                              "05a5a5a";
    QTest::newRow("control") << QStringLiteral("\n\t") << "matXcopy.0a09";
}

void ShortcutRegistryTest::materialNamesInAnyScriptGiveIds()
{
    QFETCH(QString, name);
    QFETCH(QString, id);
    QCOMPARE(ZelHotKeyMaterials::materialShortcutId(name), id);
    QCOMPARE(ZelHotKeyMaterials::materialName(id), name);

    QWidget window;
    ZelShortcut shortcut(id, name, Qt::CTRL | Qt::Key_1, &window);
    registry().storeSettings();
    restart();
    registry().restoreSettings();
    QCOMPARE(ZelHotKeyMaterials::materialHotKeyIds(), QStringList{id});
    QCOMPARE(registry().getShortcutInfo(id), QStringLiteral("Ctrl+1"));
    const ZelShortcut again(id, {}, {}, &window);
    QCOMPARE(again.text(), name);
    QCOMPARE(again.key(), QKeySequence(Qt::CTRL | Qt::Key_1));
}

void ShortcutRegistryTest::aMaterialsHotKeyIsRenamed()
{
    QWidget window;
    const QString oldId = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Old"));
    const QString newId = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("New"));
    ZelShortcut shortcut(oldId, QStringLiteral("Old"), Qt::Key_F2, &window);
    registry().storeSettings();
    const auto before = entries();
    ZelHotKeyMaterials::renameMatHotKey(QStringLiteral("Old"), QStringLiteral("Old"));
    ZelHotKeyMaterials::renameMatHotKey(QStringLiteral("Nobody"), QStringLiteral("New"));
    QCOMPARE(entries(), before);

    ZelHotKeyMaterials::renameMatHotKey(QStringLiteral("Old"), QStringLiteral("New"));
    QCOMPARE(shortcut.id(), newId);
    QCOMPARE(shortcut.text(), QStringLiteral("New"));
    QCOMPARE(ZelHotKeyMaterials::materialHotKeyIds(), QStringList{newId});
    const ShownShortcut expected{QStringLiteral("New"), QStringLiteral("F2"), QStringLiteral("F2"),
                                 3};
    QCOMPARE(entries().value(newId), expected);
    restart();
    registry().restoreSettings();
    QCOMPARE(ZelHotKeyMaterials::materialHotKeyIds(), QStringList{newId});
    QCOMPARE(registry().getShortcutInfo(newId), QStringLiteral("F2"));
}

void ShortcutRegistryTest::aMaterialsHotKeyGivesWayToAnother()
{
    QWidget window;
    const QString a = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("A"));
    const QString b = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("B"));
    ZelShortcut first(a, QStringLiteral("A"), Qt::Key_F2, &window);
    const ZelShortcut second(b, QStringLiteral("B"), Qt::Key_F3, &window);
    ZelHotKeyMaterials::renameMatHotKey(QStringLiteral("A"), QStringLiteral("B"));
    QCOMPARE(ZelHotKeyMaterials::materialHotKeyIds(), QStringList{b});
    QCOMPARE(registry().getShortcutInfo(b), QStringLiteral("F3"));
}

void ShortcutRegistryTest::removingAHotKeyForgetsIt()
{
    QWidget window;
    const QString id = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Red"));
    const QPointer<ZelShortcut> material = new ZelShortcut(id, {}, Qt::Key_F2, &window);
    const QPointer<ZelShortcut> other =
        new ZelShortcut(QStringLiteral("gen.x"), {}, Qt::Key_F3, &window);
    registry().storeSettings();
    ZelHotKeyMaterials::removeMatHotKey(id);
    ZelHotKeyMaterials::removeMatHotKey(QStringLiteral("gen.x"));
    ZelHotKeyMaterials::removeMatHotKey(QStringLiteral("gen.nobody"));
    QVERIFY(!material);
    QVERIFY(!other);
    QVERIFY(!entries().contains(id));
    QCOMPARE(entries().value(QStringLiteral("gen.x")).key, QStringLiteral("F3"));
    restart();
    registry().restoreSettings();
    QVERIFY(ZelHotKeyMaterials::materialHotKeyIds().isEmpty());
}

ZEL_TEST_MAIN(ShortcutRegistryTest)
#include "tst_shortcut_registry.moc"
