#include "RegistryTestCase.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelHotKeyMaterials>
#include <ZelWidgets/ZelShortcut>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>

using ViewCtrl::DollyMouseMode;
using ViewCtrl::ViewMode;

namespace {

const QString group = QStringLiteral("shortcutSettings");
const QString ribbon = QStringLiteral("mat#graph.c_Ribbon");
const QString bump = QStringLiteral("mat#graph.g_PreviewBump");
const QString pan = QStringLiteral("cam#ctrl.bPan");

QJsonObject entry(const QString &id, const QJsonValue &key)
{
    return {{QStringLiteral("Id"), id}, {QStringLiteral("ZelHotkey"), key}};
}

QJsonObject modes(const QJsonValue &view, const QJsonValue &dolly)
{
    return {{QStringLiteral("CameraMoveType"), view}, {QStringLiteral("DollyEInf"), dolly}};
}

QString document(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

ViewCtrl::Settings &view()
{
    return *ViewCtrl::Settings::instance();
}

QString gestureOf(const QString &id)
{
    return ZelMouseActionSettings::instance()->findById(id)->internalShortcutTxt();
}

} // namespace

class ShortcutExchangeTest : public RegistryTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysSurviveARestart_data();
    void keysSurviveARestart();
    void undoAndRedoAreNeverLost();
    void storedRubbishIsPassedOver();
    void theDocumentHasItsForm();
    void anExportGivesTheSameRegistryElsewhere();
    void anExportOfAnEditorStoresNothing();
    void anImportReachesLiveObjects();
    void anImportWithAnEditorWaitsForIt();
    void anAppliedImportDropsHotKeys();
    void anImportReplacesHotKeysAtOnce();
    void modesOfADocumentAreTakenOver_data();
    void modesOfADocumentAreTakenOver();
    void hostileDocumentsAreRefused_data();
    void hostileDocumentsAreRefused();
    void aLongDocumentIsRead();

private:
    void rebind();
};

/// A registry with changed and cleared keys, gestures and a material.
void ShortcutExchangeTest::rebind()
{
    registry().registerShortcut(ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Größe 红")),
                                QStringLiteral("Größe 红"), QStringLiteral("Ctrl+Alt+R"));
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    itemOf(tree, ribbon)->setShortcut(QStringLiteral("Ctrl+K, Ctrl+\\, \", ,"));
    itemOf(tree, bump)->setShortcut({});
    itemOf(tree, pan)->setShortcut(QStringLiteral("!#MD#CTRL#/RMB##KEY_1# !#"));
    ZelShortcutGuiHelper::applyChanges(&tree);
}

void ShortcutExchangeTest::keysSurviveARestart_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"1", "true", "", "Ctrl+Shift+Del", "Num+5", "Space", "Ctrl+K, Ctrl+C",
                            "\\", "\"", "#", "Ctrl++", "Media Play", "!#MD#LMB#!#"}) {
        QTest::newRow(key) << QString::fromLatin1(key);
    }
    QTest::newRow("cyrillic") << QStringLiteral("Ctrl+Я");
    QTest::newRow("long") << QString(10000, u'x');
}

void ShortcutExchangeTest::keysSurviveARestart()
{
    QFETCH(QString, key);
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    itemOf(tree, ribbon)->setShortcut(key);
    ZelShortcutGuiHelper::applyChanges(&tree);
    QWidget window;
    const ZelShortcut before(ribbon, {}, Qt::Key_F2, &window);

    restart();
    QCOMPARE(registry().getShortcutInfo(ribbon), QStringLiteral("R"));
    // As another process reads it.
    const QString copy = folder() + QStringLiteral("/copy.json");
    QVERIFY(QFile::copy(settingsFile(), copy));
    ZelSettings::setStorePath(copy);
    registry().restoreSettings();
    QCOMPARE(registry().getShortcutInfo(ribbon), key);
    const ZelShortcut after(ribbon, {}, Qt::Key_F2, &window);
    QCOMPARE(after.key(), before.key());
}

void ShortcutExchangeTest::undoAndRedoAreNeverLost()
{
    const QStringList ids{QStringLiteral("gen.aUndo"), QStringLiteral("gen.bRedo"),
                          QStringLiteral("gen.cDelete")};
    for (const QString &id : ids)
        registry().registerShortcut(id, {}, QStringLiteral("F9"));
    ZelSettings store(group);
    const QStringList keys{QStringLiteral("genQQQaUndo"), QStringLiteral("genQQQbRedo"),
                           QStringLiteral("genQQQcDelete")};
    for (const QString &key : keys)
        store.setValue(key, QString());
    messages().expect(QtWarningMsg, QStringLiteral("No undo command set. Changed it to default."));
    messages().expect(QtWarningMsg, QStringLiteral("No redo command set. Changed it to default."));
    registry().restoreSettings();
    const QStringList expected{QKeySequence(QKeySequence::Undo).toString(),
                               QKeySequence(QKeySequence::Redo).toString(), QString()};
    for (int i = 0; i < ids.size(); ++i) {
        QCOMPARE(registry().getShortcutInfo(ids[i]), expected[i]);
        QCOMPARE(store.value(keys[i]).toString(), expected[i]);
    }
}

void ShortcutExchangeTest::storedRubbishIsPassedOver()
{
    const auto before = entries();
    ZelSettings store(group);
    store.setValue(QStringLiteral("matZZZgraphQQQc_Ribbon"), 7);
    store.setValue(QStringLiteral("matZZZgraphQQQg_PreviewBump"), QStringList{QStringLiteral("a")});
    store.setValue(QStringLiteral("ViewCtrl"), QStringLiteral("4"));
    store.setValue(QStringLiteral("DollyLastManualMoveMode"), QByteArray("x"));
    store.setValue(QStringLiteral("matXcopy"), QStringLiteral("K"));
    store.setValue(QStringLiteral("zooQQQx"), QStringLiteral("K"));
    registry().restoreSettings();
    QCOMPARE(entries(), before);
    QCOMPARE(view().viewMode(), ViewMode::Mode0);
}

void ShortcutExchangeTest::theDocumentHasItsForm()
{
    rebind();
    view().setViewMode(ViewMode::Mode8);
    view().setDollyZoomInMode(DollyMouseMode::Mode2);
    const QString text = registry().exportShortcuts(nullptr);
    const QJsonDocument parsed = QJsonDocument::fromJson(text.toUtf8());
    QCOMPARE(text, QString::fromUtf8(parsed.toJson(QJsonDocument::Indented)));
    const QJsonArray array = parsed.array();
    const auto all = entries();
    QCOMPARE(array.size(), all.size() + 1);
    QCOMPARE(array.last().toObject(), modes(8, 2));
    qsizetype i = 0;
    for (auto it = all.cbegin(); it != all.cend(); ++it, ++i) {
        QJsonObject expected = entry(it.key(), it->key);
        expected.insert(QStringLiteral("Text"), it->text);
        expected.insert(QStringLiteral("XDefault"), it->defaultKey);
        QCOMPARE(array[i].toObject(), expected);
    }
}

void ShortcutExchangeTest::anExportGivesTheSameRegistryElsewhere()
{
    rebind();
    view().setViewMode(ViewMode::Mode4);
    view().setDollyZoomInMode(DollyMouseMode::Mode2);
    auto expected = entries();
    const QString text = registry().exportShortcuts(nullptr);

    ZelSettings::setStorePath(folder() + QStringLiteral("/fresh.json"));
    restart();
    QVERIFY(entries() != expected);
    QVERIFY(registry().importShortcuts(text, nullptr));
    QCOMPARE(entries(), expected);
    QCOMPARE(view().viewMode(), ViewMode::Mode4);
    QCOMPARE(view().dollyZoomInMode(), DollyMouseMode::Mode2);
    QCOMPARE(gestureOf(pan), QStringLiteral("!#MD#ALT#/CMB#!#"));
    QCOMPARE(registry().exportShortcuts(nullptr), text);

    registry().storeSettings();
    view().storeViewCamSettings();
    restart();
    registry().restoreSettings();
    QCOMPARE(entries(), expected);
    QCOMPARE(gestureOf(pan), QStringLiteral("!#MD#ALT#/CMB#!#"));
    view().setViewMode(ViewMode::Mode0);
    QCOMPARE(gestureOf(pan), QStringLiteral("!#MD#CTRL#/RMB##KEY_1# !#"));
}

void ShortcutExchangeTest::anExportOfAnEditorStoresNothing()
{
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    itemOf(tree, ribbon)->setShortcut(QStringLiteral("F7"));
    auto shownThere = shown(tree);
    const auto before = entries();
    const QString text = registry().exportShortcuts(&tree);
    QCOMPARE(entries(), before);
    QVERIFY(ZelSettings(group).keys().isEmpty());
    QVERIFY(registry().importShortcuts(text, nullptr));
    QCOMPARE(entries(), shownThere);
}

void ShortcutExchangeTest::anImportReachesLiveObjects()
{
    QWidget window;
    const ZelShortcut shortcut(ribbon, {}, {}, &window);
    const QJsonArray one{entry(ribbon, QStringLiteral("F7"))};
    // One entry is no shortcut file; the change stays.
    QVERIFY(!registry().importShortcuts(document(one), nullptr));
    QCOMPARE(shortcut.key(), QKeySequence(Qt::Key_F7));
    const QJsonArray two{entry(ribbon, QStringLiteral("F8")),
                         entry(pan, QStringLiteral("!#MD#RMB#!#"))};
    QVERIFY(registry().importShortcuts(document(two), nullptr));
    QCOMPARE(shortcut.key(), QKeySequence(Qt::Key_F8));
    QCOMPARE(gestureOf(pan), QStringLiteral("!#MD#RMB#!#"));
    QVERIFY(ZelSettings(group).keys().isEmpty());
}

void ShortcutExchangeTest::anImportWithAnEditorWaitsForIt()
{
    QWidget window;
    const QString red = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Red"));
    const QString blue = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Blue"));
    const QPointer<ZelShortcut> hotKey =
        new ZelShortcut(red, QStringLiteral("Red"), Qt::Key_F2, &window);
    const ZelShortcut shortcut(ribbon, {}, {}, &window);
    registry().storeSettings();
    const auto before = entries();
    const QByteArray storeBefore = registry().exportShortcuts(nullptr).toUtf8();

    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    const QJsonArray array{entry(ribbon, QStringLiteral("F7")),
                           entry(pan, QStringLiteral("!#MD#RMB#!#")),
                           entry(blue, QStringLiteral("F3")), modes(0, 3)};
    view().setDollyZoomInMode(DollyMouseMode::Mode3);
    QVERIFY(registry().importShortcuts(document(array), &tree));
    const auto offered = shown(tree);
    QCOMPARE(offered.value(ribbon).key, QStringLiteral("F7"));
    QCOMPARE(offered.value(blue).text, QStringLiteral("Blue"));
    QVERIFY(!offered.contains(red));

    // Nothing of it is in force, and nothing of it remains when the editor is filled again.
    QCOMPARE(entries(), before);
    QVERIFY(hotKey);
    QCOMPARE(hotKey->key(), QKeySequence(Qt::Key_F2));
    QCOMPARE(shortcut.key(), QKeySequence(Qt::Key_R));
    QCOMPARE(gestureOf(pan), QStringLiteral("!#MD#CMB#!#"));
    QVERIFY(ZelSettings(group).hasKey(QStringLiteral("matXcopyQQQ526564")));
    ZelShortcutGuiHelper::buildTree(&tree);
    ZelShortcutGuiHelper::applyChanges(&tree);
    QCOMPARE(entries(), before);
    QVERIFY(hotKey);
    QCOMPARE(registry().exportShortcuts(nullptr).toUtf8().size(), storeBefore.size());
}

void ShortcutExchangeTest::anAppliedImportDropsHotKeys()
{
    QWidget window;
    const QString red = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Red"));
    const QString blue = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Blue"));
    const QPointer<ZelShortcut> dropped = new ZelShortcut(red, {}, Qt::Key_F2, &window);
    const QPointer<ZelShortcut> kept = new ZelShortcut(blue, {}, Qt::Key_F3, &window);
    registry().storeSettings();
    QTreeWidget tree;
    const QJsonArray array{entry(ribbon, QStringLiteral("F7")), entry(blue, QStringLiteral("F4"))};
    QVERIFY(registry().importShortcuts(document(array), &tree));
    ZelShortcutGuiHelper::applyChanges(&tree);
    QVERIFY(!dropped);
    QVERIFY(kept);
    QCOMPARE(kept->key(), QKeySequence(Qt::Key_F4));
    QCOMPARE(registry().getShortcutInfo(ribbon), QStringLiteral("F7"));
    restart();
    registry().restoreSettings();
    QCOMPARE(ZelHotKeyMaterials::materialHotKeyIds(), QStringList{blue});
    QCOMPARE(registry().getShortcutInfo(ribbon), QStringLiteral("F7"));
}

void ShortcutExchangeTest::anImportReplacesHotKeysAtOnce()
{
    QWidget window;
    const QString red = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("Red"));
    const QPointer<ZelShortcut> hotKey = new ZelShortcut(red, {}, Qt::Key_F2, &window);
    registry().storeSettings();
    QVERIFY(!registry().importShortcuts(document({}), nullptr));
    QVERIFY(hotKey);
    const QString lime = ZelHotKeyMaterials::materialShortcutId(QStringLiteral("لون"));
    const QJsonArray array{entry(ribbon, QStringLiteral("F7")), entry(lime, QStringLiteral("F4"))};
    QVERIFY(registry().importShortcuts(document(array), nullptr));
    QVERIFY(!hotKey);
    const ShownShortcut expected{QStringLiteral("لون"), QStringLiteral("F4"), QStringLiteral("F4"),
                                 3};
    QCOMPARE(entries().value(lime), expected);
    QVERIFY(!entries().contains(red));
    QVERIFY(!ZelSettings(group).hasKey(QStringLiteral("matXcopyQQQ526564")));
}

void ShortcutExchangeTest::modesOfADocumentAreTakenOver_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("dolly");

    QTest::newRow("both") << modes(4, 1) << 4 << 1;
    QTest::newRow("mode's own") << modes(4, -1) << 4 << 3;
    QTest::newRow("no mode") << modes(-1, 1) << 0 << 0;
    QTest::newRow("wrong types") << modes(QStringLiteral("4"), QJsonArray{1}) << 0 << 0;
    QTest::newRow("fraction") << modes(4.5, 1) << 0 << 0;
    QTest::newRow("too large") << modes(1e300, 1) << 0 << 0;
    QTest::newRow("unknown mode") << modes(2147483647, 1) << 2147483647 << 1;
}

void ShortcutExchangeTest::modesOfADocumentAreTakenOver()
{
    QFETCH(QJsonObject, object);
    QFETCH(int, mode);
    QFETCH(int, dolly);
    view().setDollyZoomInMode(DollyMouseMode::Mode0);
    QVERIFY(!registry().importShortcuts(document({object}), nullptr));
    QCOMPARE(static_cast<int>(view().viewMode()), mode);
    QCOMPARE(static_cast<int>(view().dollyZoomInMode()), dolly);
}

void ShortcutExchangeTest::hostileDocumentsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("failures");

    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("no JSON") << QStringLiteral("[{]") << 0;
    QTest::newRow("object") << QStringLiteral("{\"Id\": \"mat#graph.c_Ribbon\"}") << 0;
    QTest::newRow("empty array") << QStringLiteral("[]") << 0;
    QTest::newRow("deep") << QString(100000, u'[') << 0;
    QTest::newRow("scalars") << QStringLiteral("[1, null, \"x\", [[]], true]") << 5;
    QTest::newRow("wrong key types")
        << document({entry(ribbon, 7), entry(bump, QJsonObject()), entry(pan, QJsonValue())}) << 3;
    QTest::newRow("wrong id types")
        << QStringLiteral("[{\"Id\": 7, \"ZelHotkey\": \"K\"}, {\"Id\": [], \"ZelHotkey\": \"\"}]")
        << 2;
    QTest::newRow("unknown ids") << document({entry(QStringLiteral("zoo.\"x"), QStringLiteral("K")),
                                              entry(QString(10000, u'x'), QStringLiteral("K")),
                                              entry(QStringLiteral("gen.\u0000\n"),
                                                    QStringLiteral("K"))})
                                 << 3;
}

void ShortcutExchangeTest::hostileDocumentsAreRefused()
{
    QFETCH(QString, text);
    QFETCH(int, failures);
    const auto before = entries();
    for (int i = 0; i < 2 * failures; ++i)
        messages().expect(QtWarningMsg, QStringLiteral("Import: unknown shortcut: "));
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    QVERIFY(!registry().importShortcuts(text, &tree));
    QCOMPARE(shown(tree), before);
    QVERIFY(!registry().importShortcuts(text, nullptr));
    QCOMPARE(entries(), before);
}

void ShortcutExchangeTest::aLongDocumentIsRead()
{
    QJsonArray array;
    for (int i = 0; i < 100000; ++i)
        array.append(entry(i % 2 ? ribbon : bump, QString::number(i)));
    QVERIFY(registry().importShortcuts(document(array), nullptr));
    QCOMPARE(registry().getShortcutInfo(ribbon), QStringLiteral("99999"));
    QCOMPARE(registry().getShortcutInfo(bump), QStringLiteral("99998"));
}

ZEL_TEST_MAIN(ShortcutExchangeTest)
#include "tst_shortcut_exchange.moc"
