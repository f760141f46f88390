#include "ShortcutBench.h"
#include "TestCase.h"
#include "UserInput.h"

#include "ZelMessageBox.h"
#include "ZelResources.h"
#include "shortcuts/ViewCtrl.h"
#include "shortcuts/ZelAction.h"
#include "shortcuts/ZelMouseActionSettings.h"
#include "shortcuts/ZelShortcutHandler.h"
#include "theme/IconColorTheme.h"

#include <ZelCore/ZelSettings>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace {

using Shortcut = ZelMouseShortcut;

constexpr int stateColumn = 4;

QString keyInForce(const char *name)
{
    return ZelShortcutHandler::instance()->getShortcutInfo(id(name));
}

} // namespace

class ShortcutEditorTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyKeyCanBeRecorded_data();
    void everyKeyCanBeRecorded();
    void aReassignedKeyLeavesTheOthersOfItsScope();
    void keysOfOtherWindowsAreAllowed();
    void cancelLeavesNoTraces();
    void aCancelledImportGivesTheGesturesBack();
    void applyStoresAndReachesTheActions();
    void theRowsAreFilteredByTextKeysAndMarks();
    void resetAndClearWorkOnARowAndOnAll();
    void gesturesAreRecordedByTheMouse_data();
    void gesturesAreRecordedByTheMouse();
    void gesturesAreChosenByTheKeyboard();
    void aPresetIsTriedAndStored();
    void filesComeAndGo();
    void badFilesAreRefused_data();
    void badFilesAreRefused();

private:
    std::unique_ptr<QWidget> window_;
    QPointer<ZelAction> frame_;
    QPointer<ZelAction> grid_;
};

void ShortcutEditorTest::initTestCase()
{
    zelmorawidgets_init_resources();
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
}

void ShortcutEditorTest::init()
{
    TestCase::init();
    ZelShortcutHandler::destroy();
    ZelShortcutHandler::prepareInstance();
    window_ = std::make_unique<QWidget>();
    frame_ =
        new ZelAction(id("cam.aFrame"), QStringLiteral("&Frame All..."), Qt::Key_F, window_.get());
    grid_ =
        new ZelAction(id("cam.bGrid"), QStringLiteral("Grid"), Qt::CTRL | Qt::Key_G, window_.get());
    for (ZelAction *action : {frame_.data(), grid_.data()})
        window_->addAction(action->qAction());
    ZelShortcutHandler::instance()->restoreSettings();
    ZelShortcutHandler::instance()->setSystemInitialized(window_.get());
}

void ShortcutEditorTest::cleanup()
{
    ViewCtrl::Settings::instance()->setViewMode(ViewCtrl::ViewMode::Mode0);
    // The table of gestures outlives the registry.
    const std::pair<const char *, Shortcut> defaults[] = {
        {"cam#ctrl.bPan", {Shortcut::Drag, Qt::NoModifier, Qt::MiddleButton}},
        {"cam#ctrl.gTwist", {Shortcut::Wheel, Qt::ControlModifier | Qt::AltModifier, {}}},
        {"if#mouse.context", {Shortcut::RightClick, Qt::NoModifier, {}}}};
    for (const auto &[action, gesture] : defaults) {
        const auto *found = ZelMouseActionSettings::instance()->findById(id(action));
        const_cast<ZelMouseAction *>(found)->setShortcut(gesture);
    }
    window_.reset();
    TestCase::cleanup();
}

void ShortcutEditorTest::everyKeyCanBeRecorded_data()
{
    QTest::addColumn<QList<QKeyCombination>>("keys");
    QTest::addColumn<QString>("portable");
    const auto row = [](const QList<QKeyCombination> &keys, const char *portable) {
        QTest::newRow(portable) << keys << id(portable);
    };
    row({Qt::Key_Space}, "Space");
    row({Qt::Key_Tab}, "Tab");
    row({Qt::SHIFT | Qt::Key_Backtab}, "Shift+Tab");
    row({Qt::Key_Escape}, "Esc");
    row({Qt::Key_Return}, "Return");
    row({Qt::CTRL | Qt::Key_Space}, "Ctrl+Space");
    row({QKeyCombination(Qt::KeypadModifier, Qt::Key_7)}, "Num+7");
    row({Qt::ALT | Qt::Key_R, Qt::Key_Delete}, "Alt+R, Del");
    row({Qt::Key_A, Qt::Key_B, Qt::Key_C, Qt::Key_D, Qt::Key_E}, "A, B, C, D");
}

void ShortcutEditorTest::everyKeyCanBeRecorded()
{
    QFETCH(const QList<QKeyCombination>, keys);
    QFETCH(const QString, portable);
    Bench bench;
    QVERIFY(QTest::qWaitForWindowActive(&bench));
    bench.record("cam.aFrame", keys);
    QVERIFY(!bench.verdict().isEmpty());
    QCOMPARE(bench.button("ShortcutReassign")->isVisible(),
             bench.verdict() != QStringLiteral("Not used by others"));
    // The recording ends by itself, on the answer that Return gives.
    QTRY_VERIFY(bench.button("ShortcutKeep")->hasFocus());
    QTest::keyClick(bench.button("ShortcutKeep"), Qt::Key_Return);
    QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), portable);
    QVERIFY(bench.editor->tree()->hasFocus());
    QCOMPARE(frame_->qAction()->shortcut(), QKeySequence(Qt::Key_F));
}

void ShortcutEditorTest::aReassignedKeyLeavesTheOthersOfItsScope()
{
    Bench bench;
    QVERIFY(QTest::qWaitForWindowActive(&bench));
    bench.record("cam.aFrame", {Qt::CTRL | Qt::Key_G});
    // The ground plane has no live object, which is elsewhere; the grid is in the same window.
    QCOMPARE(bench.verdict(), QStringLiteral("Used by Grid in the same scope"));
    QTRY_VERIFY(bench.button("ShortcutReassign")->hasFocus());
    bench.button("ShortcutKeep")->click();
    QVERIFY(bench.row("cam.aFrame")->text(stateColumn).contains(QLatin1String("Conflict")));
    QVERIFY(bench.row("cam.bGrid")->text(stateColumn).contains(QLatin1String("Conflict")));
    QVERIFY(bench.row("edit#geo.aAddGrndPln")->text(stateColumn).isEmpty());

    bench.record("cam.aFrame", {Qt::CTRL | Qt::Key_G});
    bench.button("ShortcutReassign")->click();
    QCOMPARE(bench.row("cam.bGrid")->shortcutInternalText(), QString());
    QCOMPARE(bench.row("edit#geo.aAddGrndPln")->shortcutInternalText(), QStringLiteral("Ctrl+G"));
    QCOMPARE(bench.row("cam.aFrame")->text(stateColumn), QStringLiteral("Not applied"));

    bench.record("cam.aFrame", {Qt::CTRL | Qt::Key_H});
    QTRY_VERIFY(bench.button("ShortcutKeep")->hasFocus());
    QTest::keyClick(bench.button("ShortcutKeep"), Qt::Key_Escape);
    QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), QStringLiteral("Ctrl+G"));
}

void ShortcutEditorTest::keysOfOtherWindowsAreAllowed()
{
    QWidget other;
    ZelAction action(id("mat.bench"), QStringLiteral("Bench"), Qt::Key_Q, &other);
    Bench bench;
    bench.record("cam.aFrame", {Qt::Key_Q});
    QCOMPARE(bench.verdict(), QStringLiteral("Used by Bench elsewhere, allowed"));
    bench.button("ShortcutKeep")->click();
    QCOMPARE(bench.row("cam.aFrame")->text(stateColumn), QStringLiteral("Not applied"));
    action.setScope(window_.get());
    bench.hide();
    bench.show();
    QCOMPARE(bench.row("cam.aFrame")->text(stateColumn), QStringLiteral("Conflict, Not applied"));
}

void ShortcutEditorTest::cancelLeavesNoTraces()
{
    auto *view = ViewCtrl::Settings::instance();
    view->setViewMode(ViewCtrl::ViewMode::Mode3);
    view->setDollyZoomInMode(ViewCtrl::DollyMouseMode::Mode1);
    const QString before = ZelShortcutHandler::instance()->exportShortcuts(nullptr);
    Bench bench;
    const QSignalSpy cancelled(bench.editor.get(), &ZelShortcutEditorWidget::cancelled);
    for (int i = 0; i < 2; ++i) {
        bench.record("cam.aFrame", {Qt::Key_Q});
        bench.button("ShortcutKeep")->click();
        auto *modes = bench.part<QComboBox>("ShortcutViewMode");
        modes->setFocus();
        QTest::keyClick(modes, Qt::Key_End);
        QCOMPARE(int(view->viewMode()), 13);
        bench.editor->clearAll();
        QVERIFY(bench.editor->importText(QStringLiteral(
            R"([{"Id":"cam.aFrame","ZelHotkey":"W"},{"Id":"cam.bGrid","ZelHotkey":"E"},)"
            R"({"Id":"matXcopy.41","ZelHotkey":"P"},{"CameraMoveType":5,"DollyEInf":2}])")));
        QCOMPARE(bench.row("cam.bGrid")->shortcutInternalText(), QStringLiteral("E"));
        QVERIFY(bench.row("matXcopy.41") && bench.editor->hasChanges());
        QCOMPARE(int(view->viewMode()), 5);
        // By the button, and by the end of the editor.
        if (i == 0) {
            bench.button("ShortcutCancel")->click();
            QVERIFY(!bench.editor->hasChanges() && !bench.row("matXcopy.41"));
            QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), QStringLiteral("F"));
            QCOMPARE(cancelled.count(), 1);
        }
    }
    bench.editor.reset();
    QCOMPARE(ZelShortcutHandler::instance()->exportShortcuts(nullptr), before);
    QVERIFY(!ZelSettings(QStringLiteral("shortcutSettings")).hasKey(id("camQQQaFrame")));
}

void ShortcutEditorTest::aCancelledImportGivesTheGesturesBack()
{
    // The modes of the document are those in force, its gestures are not.
    ViewCtrl::Settings::instance()->setViewMode(ViewCtrl::ViewMode::Mode0);
    ViewCtrl::Settings::instance()->setDollyZoomInMode(ViewCtrl::DollyMouseMode::Mode0);
    Bench bench;
    const auto *pan = ZelMouseActionSettings::instance()->findById(id("cam#ctrl.bPan"));
    bench.editor->importText(QStringLiteral(R"([{"Id":"cam#ctrl.bPan","ZelHotkey":"!#MD#RMB#!#"},)"
                                            R"({"CameraMoveType":0,"DollyEInf":0}])"));
    QCOMPARE(bench.row("cam#ctrl.bPan")->shortcutInternalText(), QStringLiteral("!#MD#RMB#!#"));
    bench.editor->cancel();
    QCOMPARE(pan->internalShortcutTxt(), QStringLiteral("!#MD#CMB#!#"));
}

void ShortcutEditorTest::applyStoresAndReachesTheActions()
{
    Bench bench;
    const QSignalSpy applied(bench.editor.get(), &ZelShortcutEditorWidget::applied);
    QVERIFY(!bench.button("ShortcutApply")->isEnabled());
    bench.record("cam.aFrame", {Qt::CTRL | Qt::Key_K, Qt::Key_F});
    bench.button("ShortcutKeep")->click();
    bench.button("ShortcutApply")->click();
    QCOMPARE(applied.count(), 1);
    QCOMPARE(frame_->qAction()->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_K, Qt::Key_F));
    QCOMPARE(bench.row("cam.aFrame")->text(stateColumn), QStringLiteral("Changed"));
    QVERIFY(bench.row("cam.aFrame")->font(Item::KeyColumn).bold());
    QVERIFY(!bench.button("ShortcutApply")->isEnabled());
    const ZelSettings store(QStringLiteral("shortcutSettings"));
    QCOMPARE(store.value(id("camQQQaFrame")).toString(), QStringLiteral("Ctrl+K, F"));
}

void ShortcutEditorTest::theRowsAreFilteredByTextKeysAndMarks()
{
    Bench bench;
    QVERIFY(QTest::qWaitForWindowActive(&bench));
    const auto all = bench.shownIds();
    auto *search = bench.part<QLineEdit>("ShortcutSearch");
    UserInput::type(search, QStringLiteral("frame camera"));
    QCOMPARE(bench.shownIds(), {id("cam.aFrame")});
    QVERIFY(bench.row("edit")->isHidden() && !bench.row("cam")->isHidden());
    search->setFocus();
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(bench.editor->tree()->currentItem(), bench.row("cam.aFrame"));
    QVERIFY(bench.editor->tree()->hasFocus());
    search->clear();

    auto *keys = bench.part<QLineEdit>("ShortcutKeyFilter");
    keys->setFocus();
    QTest::keyClick(keys, Qt::Key_Space);
    QTest::keyClick(keys, Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(bench.shownIds(), QStringList({id("cam.bGrid"), id("edit#geo.aAddGrndPln")}));
    bench.checkBox(QStringLiteral("Only conflicts"))->click();
    QVERIFY(bench.shownIds().isEmpty());
    bench.checkBox(QStringLiteral("Only conflicts"))->click();
    QTRY_VERIFY(bench.editor->tree()->hasFocus());
    keys->setFocus();
    QTest::keyClick(keys, Qt::Key_Return);
    bench.editor->tree()->setFocus();
    QCOMPARE(bench.shownIds(), all);

    bench.checkBox(QStringLiteral("Only changed"))->click();
    QVERIFY(bench.shownIds().isEmpty());
    bench.editor->clearAll();
    QVERIFY(bench.shownIds().contains(id("cam.aFrame")));
    QVERIFY(!bench.shownIds().contains(id("mat#graph.qClearSelection")));
}

void ShortcutEditorTest::resetAndClearWorkOnARowAndOnAll()
{
    Bench bench;
    bench.choose("cam.aFrame");
    QVERIFY(!bench.button("ShortcutReset")->isEnabled());
    QTest::keyClick(bench.editor->tree(), Qt::Key_Delete);
    QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), QString());
    QVERIFY(!bench.button("ShortcutClear")->isEnabled());
    bench.button("ShortcutReset")->click();
    QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), QStringLiteral("F"));
    QVERIFY(!bench.editor->hasChanges());
    bench.button("ShortcutClear")->click();
    bench.button("ShortcutClearAll")->click();
    QCOMPARE(bench.row("cam#ctrl.bPan")->shortcutInternalText(), QString());
    bench.button("ShortcutResetAll")->click();
    QVERIFY(!bench.editor->hasChanges());
    QCOMPARE(keyInForce("cam.aFrame"), QStringLiteral("F"));
}

void ShortcutEditorTest::gesturesAreRecordedByTheMouse_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<std::function<void(QWidget *)>>("gesture");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("verdict");
    using Act = std::function<void(QWidget *)>;
    const QString isFree = QStringLiteral("Not used by others");
    const QPoint place(10, 10);
    QTest::newRow("drag") << id("cam#ctrl.bPan") << Act([=](QWidget *pad) {
        UserInput::drag(pad, place, {40, 20}, Qt::ShiftModifier, Qt::RightButton);
    }) << QStringLiteral("!#MD#SHIFT#/RMB#!#")
                          << isFree;
    QTest::newRow("taken drag") << id("cam#ctrl.bPan") << Act([=](QWidget *pad) {
        UserInput::drag(pad, place, {40, 20});
    }) << QStringLiteral("!#MD#LMB#!#")
                                << QStringLiteral("Used by Tumble in the same scope");
    QTest::newRow("a click is no drag") << id("cam#ctrl.bPan") << Act([=](QWidget *pad) {
        QTest::mouseClick(pad, Qt::LeftButton, {}, place);
        UserInput::wheel(pad, 1);
    }) << QString() << QString();
    QTest::newRow("wheel") << id("cam#ctrl.gTwist")
                           << Act([](QWidget *pad) { UserInput::wheel(pad, 1, Qt::ShiftModifier); })
                           << QStringLiteral("!#MW#SHIFT#/!#") << isFree;
    QTest::newRow("click") << id("if#mouse.context") << Act([=](QWidget *pad) {
        QTest::mouseClick(pad, Qt::MiddleButton, Qt::ControlModifier, place);
    }) << QStringLiteral("!#MCC#CTRL#/!#")
                           << isFree;
    QTest::newRow("double click") << id("if#mouse.context") << Act([=](QWidget *pad) {
        QTest::mouseDClick(pad, Qt::LeftButton, Qt::AltModifier, place);
    }) << QStringLiteral("!#MDC#ALT#/!#")
                                  << isFree;
}

void ShortcutEditorTest::gesturesAreRecordedByTheMouse()
{
    QFETCH(const QString, action);
    QFETCH(const std::function<void(QWidget *)>, gesture);
    QFETCH(const QString, text);
    QFETCH(const QString, verdict);
    Bench bench;
    const QByteArray name = action.toLatin1();
    bench.choose(name);
    const QString before = bench.row(name)->shortcutInternalText();
    bench.editor->record();
    gesture(bench.part<QWidget>("ShortcutGesturePad"));
    if (!text.isEmpty())
        QCOMPARE(bench.verdict(), verdict);
    bench.button("ShortcutKeep")->click();
    QCOMPARE(bench.row(name)->shortcutInternalText(), text.isEmpty() ? before : text);
    bench.editor->apply();
    QCOMPARE(ZelMouseActionSettings::instance()->findById(action)->internalShortcutTxt(),
             bench.row(name)->shortcutInternalText());
}

void ShortcutEditorTest::gesturesAreChosenByTheKeyboard()
{
    Bench bench;
    QVERIFY(QTest::qWaitForWindowActive(&bench));
    bench.choose("cam#ctrl.gTwist");
    bench.editor->tree()->setFocus();
    QTest::keyClick(bench.editor->tree(), Qt::Key_F2);
    auto *event = qobject_cast<QComboBox *>(QApplication::focusWidget());
    QVERIFY(event);
    QTest::keyClick(event, Qt::Key_Down);
    QVERIFY(!bench.button("ShortcutKeep")->isEnabled());
    QCheckBox *right = bench.checkBox(QStringLiteral("Right"));
    QVERIFY(right->isVisible());
    right->setFocus();
    QTest::keyClick(right, Qt::Key_Space);
    QVERIFY(bench.button("ShortcutKeep")->isEnabled());
    bench.button("ShortcutKeep")->setFocus();
    QTest::keyClick(bench.button("ShortcutKeep"), Qt::Key_Return);
    QCOMPARE(bench.row("cam#ctrl.gTwist")->shortcutInternalText(),
             QStringLiteral("!#MD#ALT#CTRL#/RMB#!#"));
}

void ShortcutEditorTest::aPresetIsTriedAndStored()
{
    Bench bench;
    bench.editor->setViewModeNames({QStringLiteral("Mine"), QStringLiteral("Theirs")});
    auto *modes = bench.part<QComboBox>("ShortcutViewMode");
    QCOMPARE(modes->itemText(1), QStringLiteral("Theirs"));
    QCOMPARE(modes->count(), 14);
    QTest::keyClick(modes, Qt::Key_T);
    QTest::keyClick(modes, Qt::Key_Down);
    QCOMPARE(int(ViewCtrl::Settings::instance()->viewMode()), 2);
    QCOMPARE(bench.row("cam#ctrl.aTumble")->text(stateColumn),
             QStringLiteral("Preset: Alt+MMB Drag"));
    QVERIFY(bench.editor->hasChanges());
    bench.editor->apply();
    QVERIFY(!bench.editor->hasChanges());
    QCOMPARE(ZelSettings(QStringLiteral("shortcutSettings")).value(QStringLiteral("ViewCtrl")), 2);
    // The user's own gestures stay what they are.
    QCOMPARE(keyInForce("cam#ctrl.aTumble"), QStringLiteral("!#MD#LMB#!#"));
}

void ShortcutEditorTest::filesComeAndGo()
{
    const QString path = folder() + QStringLiteral("/keys.json");
    {
        Bench bench;
        bench.choose("cam.aFrame");
        bench.button("ShortcutClear")->click();
        QVERIFY(bench.editor->exportFile(path));
    }
    QCOMPARE(keyInForce("cam.aFrame"), QStringLiteral("F"));
    Bench bench;
    QVERIFY(bench.editor->importFile(path));
    QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), QString());
    QCOMPARE(keyInForce("cam.aFrame"), QStringLiteral("F"));
    bench.editor->apply();
    QCOMPARE(keyInForce("cam.aFrame"), QString());
}

void ShortcutEditorTest::badFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no text") << QByteArray("\0\xff\xfe\0", 4);
    QTest::newRow("object") << QByteArray("{\"Id\":\"cam.aFrame\",\"ZelHotkey\":\"W\"}");
    QTest::newRow("no entries") << QByteArray("[]");
    QTest::newRow("one entry") << QByteArray("[{\"Id\":\"cam.aFrame\",\"ZelHotkey\":\"W\"}]");
    QTest::newRow("missing") << QByteArray("no file");
}

void ShortcutEditorTest::badFilesAreRefused()
{
    QFETCH(const QByteArray, content);
    const bool isMissing = content == "no file";
    const QString path = isMissing ? folder() + QStringLiteral("/none.json")
                                   : writeFile(QStringLiteral("bad.json"), content);
    const ZelScopedMessageBoxMode mode(ZelMessageBox::NoGui);
    ZelMessageBox::getMessages(ZelMessageBox::Warning);
    messages().expect(QtWarningMsg, path);
    Bench bench;
    QVERIFY(!bench.editor->importFile(path));
    QCOMPARE(ZelMessageBox::getMessages(ZelMessageBox::Warning).size(), 1);
    bench.editor->cancel();
    QVERIFY(!bench.editor->hasChanges());
    QCOMPARE(bench.row("cam.aFrame")->shortcutInternalText(), QStringLiteral("F"));
}

ZEL_TEST_MAIN(ShortcutEditorTest)
#include "tst_shortcut_editor.moc"
