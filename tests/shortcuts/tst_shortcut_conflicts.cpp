// Several objects with one key: which one is meant, and what is left of it afterwards.

#include "KeyDeskTest.h"
#include "shortcuts/ZelConflictChoice.h"

#include <ZelWidgets/HotKeysDisableEnable>
#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelShortcut>
#include <ZelWidgets/ZelShortcutHandler>

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QListWidget>
#include <QMenu>

namespace {

const QString deleteId = QStringLiteral("gen.cDelete");

/// Keys that reach it may go back to the handler of conflicts.
class EatingView : public QWidget
{
public:
    using QWidget::QWidget;
    QList<int> keys;
    bool givesBack = false;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        keys.append(event->key());
        if (givesBack)
            ZelShortcutHandler::instance()->activateConflictHandlerShortcut(ctrlD);
    }
};

class KeyList : public QListWidget
{
public:
    using QListWidget::QListWidget;
    int deletes = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override { deletes += event->key() == Qt::Key_Delete; }
};

} // namespace

class TestShortcutConflicts : public KeyDeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void filtersByContext();
    void scoresByDistance();
    void firesTheFocusedView_data();
    void firesTheFocusedView();
    void tellsATieAndFiresNothing();
    void countsEachCopyForItself();
    void takesTheEnabledOneOfAnId();
    void leavesDeleteToLists();
    void worksFromAFloatingToolWindow();
    void worksForAnActionOfTheFocusWidget();
    void handsOnAKeyThatNobodyWants();
    void staysOnWhileHotKeysAreOff();
    void knowsWhoSharesAWindow();
    void worksWithOtherLayouts_data();
    void worksWithOtherLayouts();
};

void TestShortcutConflicts::filtersByContext()
{
    using ZelConflictChoice::isCandidate;
    QMainWindow window;
    auto *view = new QWidget;
    window.setCentralWidget(view);
    auto *dock = new QDockWidget(&window);
    auto *inDock = new QWidget;
    dock->setWidget(inDock);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    QDialog dialog(&window);
    auto *inDialog = new QWidget(&dialog);
    QWidget tool(&window, Qt::Tool);
    auto *inTool = new QWidget(&tool);
    QMenu menu(view);
    QMenu popup(&menu);
    struct Row
    {
        Qt::ShortcutContext context;
        QWidget *scope;
        QWidget *place;
        bool isCandidate;
    };
    const QList<Row> rows{
        {Qt::WindowShortcut, view, view, true},
        {Qt::WindowShortcut, &window, inDock, true},
        {Qt::WindowShortcut, inDock, view, false},
        {Qt::WindowShortcut, inDock, inDock, true},
        {Qt::WindowShortcut, view, inTool, true},
        {Qt::WindowShortcut, inTool, view, false},
        {Qt::WindowShortcut, view, inDialog, false},
        {Qt::WindowShortcut, inDialog, inDialog, true},
        {Qt::WindowShortcut, &popup, view, true},
        {Qt::WidgetShortcut, inDock, view, true},
        {Qt::WidgetShortcut, inTool, view, false},
        {Qt::WidgetShortcut, view, nullptr, false},
        {Qt::WidgetWithChildrenShortcut, inDock, view, true},
        {Qt::WidgetWithChildrenShortcut, view, inTool, false},
        {Qt::WidgetWithChildrenShortcut, view, &popup, true},
        {Qt::WidgetWithChildrenShortcut, view, nullptr, false},
        {Qt::ApplicationShortcut, inTool, inDialog, true},
        {Qt::ApplicationShortcut, inTool, nullptr, true},
    };
    for (const Row &row : rows) {
        QWidget *place = row.place ? row.place : &window;
        const bool found = isCandidate({row.scope, row.context, false}, row.place, place);
        QVERIFY2(found == row.isCandidate, qPrintable(QString::number(&row - rows.data())));
    }
    dock->setFloating(true);
    QVERIFY(isCandidate({view, Qt::WindowShortcut, false}, inDock, inDock));
    QVERIFY(!isCandidate({inDock, Qt::WindowShortcut, false}, view, view));
}

void TestShortcutConflicts::scoresByDistance()
{
    using ZelConflictChoice::score;
    QWidget window;
    QWidget view(&window);
    QWidget panel(&view);
    QWidget place(&panel);
    QWidget other;
    QMenu menu(&view);
    QMenu sub(&menu);
    const auto scoreOf = [&place](QWidget *scope, Qt::ShortcutContext context, bool isShortcut) {
        return score({scope, context, isShortcut}, &place);
    };
    QCOMPARE(scoreOf(&place, Qt::ApplicationShortcut, false), 0);
    QCOMPARE(scoreOf(&place, Qt::WindowShortcut, false), 200);
    QCOMPARE(scoreOf(&view, Qt::WidgetShortcut, false), 204);
    QCOMPARE(scoreOf(&window, Qt::WindowShortcut, true), 206);
    // Four steps up: the other window is never met.
    QCOMPARE(scoreOf(&other, Qt::ApplicationShortcut, true), 508);
    QCOMPARE(scoreOf(&sub, Qt::WindowShortcut, false), 207);
    QCOMPARE(scoreOf(&sub, Qt::WindowShortcut, true), 206);
}

void TestShortcutConflicts::firesTheFocusedView_data()
{
    QTest::addColumn<bool>("sameId");
    QTest::addColumn<bool>("shortcuts");
    QTest::newRow("actions of one id") << true << false;
    QTest::newRow("actions of two ids") << false << false;
    QTest::newRow("shortcuts of one id") << true << true;
    QTest::newRow("shortcuts of two ids") << false << true;
}

void TestShortcutConflicts::firesTheFocusedView()
{
    QFETCH(bool, sameId);
    QFETCH(bool, shortcuts);
    const QString second = sameId ? idA : idB;
    if (shortcuts) {
        desk_->shortcut(idA, one, ctrlD, desk_->left());
        desk_->shortcut(second, two, ctrlD, desk_->right());
    } else {
        desk_->action(idA, one, ctrlD, desk_->left());
        desk_->action(second, two, ctrlD, desk_->right());
    }
    start();
    QCOMPARE(handlerCount(desk_->window()), 1);
    QVERIFY(desk_->focus(desk_->right()));
    QCOMPARE(pressed(), Names{two});
    const QList<ZelConflictStanding> standings = registry().conflictStandings(ctrlD);
    QCOMPARE(standings.size(), 2);
    QCOMPARE(standings[0].text, two);
    QCOMPARE(standings[0].score.value_or(-1), 200);
    QVERIFY(standings[0].isMeant && !standings[1].isMeant);
    QCOMPARE(standings[1].score.value_or(-1), 204);
    QVERIFY(desk_->focus(desk_->left()));
    QCOMPARE(pressed(), Names{one});
    QVERIFY(!hasReport());
}

void TestShortcutConflicts::tellsATieAndFiresNothing()
{
    desk_->action(idA, one, ctrlD, desk_->left());
    ZelShortcut *shortcut = desk_->shortcut(idB, two, ctrlD, desk_->right());
    shortcut->setObjectName(QStringLiteral("handle"));
    desk_->right()->setObjectName(QStringLiteral("right"));
    start();
    auto *between = new QWidget(desk_->window()->centralWidget());
    between->setFocusPolicy(Qt::StrongFocus);
    between->show();
    QVERIFY(desk_->focus(between));
    QCOMPARE(pressed(), Names());
    for (const ZelConflictStanding &standing : registry().conflictStandings(ctrlD))
        QVERIFY(standing.score == 204 && standing.isEnabled && !standing.isMeant);
    QCOMPARE(messages().messages(QtDebugMsg),
             (Names{QStringLiteral("-----------------------------------------"),
                    QStringLiteral("Hotkey conflict with 'one' and 'two' (204))"),
                    QStringLiteral("Ids: (cam.aFirst, cam.bSecond). ObjNames (, handle) "),
                    QStringLiteral("Shortcut types: (ZelAction, ZelShortcut)"),
                    QStringLiteral("Contexts: (Window, Window)"),
                    QStringLiteral("SameScope: false , SameParent: false"),
                    QStringLiteral("parents: '', 'right'")}));
}

void TestShortcutConflicts::countsEachCopyForItself()
{
    desk_->action(copyId, one, ctrlD, desk_->left());
    desk_->action(copyId, two, ctrlD, desk_->right());
    start();
    QCOMPARE(pressed(), Names{one});
    desk_->left()->clearFocus();
    QTRY_VERIFY(!QApplication::focusWidget());
    QCOMPARE(pressed(), Names());
    QVERIFY(hasReport());
}

void TestShortcutConflicts::takesTheEnabledOneOfAnId()
{
    ZelAction *first = desk_->action(idA, one, ctrlD, desk_->left());
    ZelAction *second = desk_->action(idA, two, ctrlD, desk_->right());
    start();
    first->setEnabled(false);
    QCOMPARE(pressed(), Names{two});
    second->setEnabled(false);
    QCOMPARE(pressed(), Names());
    first->setEnabled(true);
    QCOMPARE(pressed(), Names{one});
}

void TestShortcutConflicts::leavesDeleteToLists()
{
    auto *list = new KeyList(desk_->left());
    list->show();
    desk_->action(deleteId, one, Qt::Key_Delete, desk_->left());
    desk_->action(deleteId, two, Qt::Key_Delete, desk_->right());
    start();
    QVERIFY(desk_->focus(list));
    QCOMPARE(pressed(Qt::Key_Delete, {}), Names());
    QCOMPARE(list->deletes, 1);
    QVERIFY(desk_->focus(desk_->left()));
    QCOMPARE(pressed(Qt::Key_Delete, {}), Names{one});
    // An action of the list itself is meant.
    desk_->action(deleteId, QStringLiteral("list"), Qt::Key_Delete, list);
    QVERIFY(desk_->focus(list));
    QCOMPARE(pressed(Qt::Key_Delete, {}), Names{QStringLiteral("list")});
    QCOMPARE(list->deletes, 1);
}

void TestShortcutConflicts::worksFromAFloatingToolWindow()
{
    auto *dock = new QDockWidget(desk_->window());
    auto *panel = new QWidget;
    panel->setFocusPolicy(Qt::StrongFocus);
    panel->setMinimumSize(100, 100);
    dock->setWidget(panel);
    desk_->window()->addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->setFloating(true);
    desk_->action(idA, one, ctrlD, desk_->window());
    desk_->action(idB, two, ctrlD, panel);
    desk_->action(idA, one, Qt::Key_Z, desk_->left());
    start();
    QCOMPARE(pressed(), Names{one});
    QVERIFY(desk_->focus(panel));
    QCOMPARE(pressed(), Names{two});
    delete panel->findChild<ZelAction *>();
    QCOMPARE(pressed(), Names{one});
}

void TestShortcutConflicts::worksForAnActionOfTheFocusWidget()
{
    // Qt still finds the one that sits on the focus widget, and tells the two in turn.
    desk_->action(idA, one, ctrlD, desk_->left());
    desk_->action(idB, two, ctrlD, desk_->right());
    desk_->action(idB, two, ctrlD, desk_->window());
    start();
    for (int turn = 0; turn < 4; ++turn)
        QCOMPARE(pressed(), Names{one});
    QVERIFY(desk_->focus(desk_->right()));
    for (int turn = 0; turn < 4; ++turn)
        QCOMPARE(pressed(), Names{two});
}

void TestShortcutConflicts::handsOnAKeyThatNobodyWants()
{
    auto *dialog = new QDialog(desk_->window());
    auto *view = new EatingView(dialog);
    view->setFocusPolicy(Qt::StrongFocus);
    desk_->action(idA, one, ctrlD, desk_->left());
    desk_->action(idB, two, ctrlD, desk_->right());
    start();
    dialog->show();
    QVERIFY(desk_->focus(view));
    QCOMPARE(pressed(), Names());
    view->keys.removeAll(Qt::Key_Control);
    view->keys.removeAll(Qt::Key_F12);
    QCOMPARE(view->keys, QList<int>{Qt::Key_D});
    view->keys.clear();
    view->givesBack = true;
    messages().expect(QtWarningMsg, QRegularExpression(QStringLiteral(
                                        "^Could not invoke a shortcut as expected \\(id: "
                                        "\"unknown\" key: -1 \\)$")));
    messages().expect(QtWarningMsg, QStringLiteral("Please report to Ortavi or change your "
                                                   "shortcut settings to avoid conflicts"));
    ZelShortcutHandler::instance()->activateConflictHandlerShortcut(ctrlD);
    QCOMPARE(view->keys.size(), 1);
}

void TestShortcutConflicts::staysOnWhileHotKeysAreOff()
{
    desk_->action(idA, one, ctrlD, desk_->left());
    desk_->shortcut(idB, two, ctrlD, desk_->right());
    start();
    HotKeysDisableEnable hotKeys;
    hotKeys.disableHotKeys({}, {ctrlD});
    QVERIFY(desk_->focus(desk_->right()));
    QCOMPARE(pressed(), Names{two});
    hotKeys.disableHotKeys({idA}, {});
    QCOMPARE(pressed(), Names());
    QVERIFY(desk_->focus(desk_->left()));
    QCOMPARE(pressed(), Names{one});
    hotKeys.reEnableHotKeys();
    QVERIFY(desk_->focus(desk_->right()));
    QCOMPARE(pressed(), Names{two});
}

void TestShortcutConflicts::knowsWhoSharesAWindow()
{
    QWidget other;
    QMenu menu(desk_->window());
    desk_->action(idA, one, ctrlD, desk_->left());
    desk_->action(idB, two, Qt::Key_Z, &other);
    const QString inMenu = QStringLiteral("cam.cMenu");
    new ZelAction(inMenu, one, Qt::Key_Y, &menu);
    QVERIFY(!registry().hasScopeConflictKey(idA, idB));
    QVERIFY(registry().hasScopeConflictKey(idA, inMenu));
    QVERIFY(!registry().hasScopeConflictKey(inMenu, idB));
    QVERIFY(!registry().hasScopeConflictKey(idA, QStringLiteral("cam.none")));
    desk_->action(idB, two, Qt::Key_Z, desk_->right());
    QVERIFY(registry().hasScopeConflictKey(idA, idB));
    const QString tumble = QStringLiteral("cam#ctrl.aTumble");
    QVERIFY(registry().hasScopeConflictMouse(tumble, tumble) ==
            (registry().findShortcut(tumble) != nullptr));
    QVERIFY(!registry().hasScopeConflictMouse(tumble, idA));
}

void TestShortcutConflicts::worksWithOtherLayouts_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QKeySequence>("key");
    QTest::addColumn<int>("place");
    // German: Y and Z change places, the key behind L is an umlaut.
    QTest::newRow("German Z") << "de" << QKeySequence(Qt::CTRL | Qt::Key_Z) << int(Qt::Key_Y);
    QTest::newRow("German umlaut")
        << "de" << QKeySequence(Qt::CTRL | Qt::Key_Odiaeresis) << int(Qt::Key_Semicolon);
    QTest::newRow("Russian") << "ru,us" << QKeySequence(Qt::CTRL | Qt::Key_D) << int(Qt::Key_D);
    QTest::newRow("Russian letter")
        << "ru,us" << QKeySequence(QString(QChar(0x0412))) << int(Qt::Key_D);
}

void TestShortcutConflicts::worksWithOtherLayouts()
{
    if (!realKeys())
        QSKIP("layouts are the window system's");
    QFETCH(QString, layout);
    QFETCH(QKeySequence, key);
    QFETCH(int, place);
    desk_->action(idA, one, key, desk_->left());
    desk_->action(idB, two, key, desk_->right());
    start();
    KeyServer::setLayout(layout);
    const Qt::KeyboardModifiers held = key[0].keyboardModifiers();
    // The window system tells of the layout when it likes.
    QTRY_COMPARE(pressed(Qt::Key(place), held), Names{one});
    QVERIFY(desk_->focus(desk_->right()));
    QCOMPARE(pressed(Qt::Key(place), held), Names{two});
    KeyServer::setLayout(QStringLiteral("us"));
}

int main(int argc, char **argv)
{
    return runKeyTests<TestShortcutConflicts>(argc, argv);
}

#include "tst_shortcut_conflicts.moc"
