#include "WorkSpaceWindow.h"
#include "docks/ZelDockHold.h"
#include "workspace/WorkSpaceRecord.h"

#include "TestCase.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelMessageBox>

#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QTimer>

#include <memory>

namespace {

QByteArray capture(const WorkSpaceWindow &window)
{
    return WorkSpaceHandler::getWorkSpaceData(window.library, window.project);
}

bool restore(const WorkSpaceWindow &window, const QByteArray &data, bool startup = false)
{
    return WorkSpaceHandler::restoreWorkSpace(data, window.library, window.project, startup);
}

/// A window with something of everything that isn't as it was at the start.
void arrange(WorkSpaceWindow &window)
{
    window.library->changeTab2Window(1)->setGeometry(400, 300, 320, 240);
    ZelDockWidgetFromTab *docked = window.project->changeTab2Window(2);
    window.addDockWidget(Qt::LeftDockWidgetArea, docked);
    docked->setFloating(false);
    window.library->changeTab2Window(2)->hide();
    window.library->tabBar()->moveTab(0, 2);
    window.library->setCurrentIndex(1);
    window.docks[0]->setFloating(true);
    window.docks[0]->setGeometry(2000, 100, 260, 300);
    window.docks[1]->hide();
    window.subTabs->setCurrentIndex(2);
    window.toolBar->setIconSizeMode(ZelToolBar::LargeIcons);
    window.toolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    window.ribbon->actions().first()->setVisible(false);
    ZelDockHold::release(&window);
    QCoreApplication::processEvents();
}

/// The bytes as an older version wrote them.
QByteArray ofVersion(WorkSpaceRecord record, char version)
{
    constexpr int modeSize = 4;
    constexpr int emptyDocksSize = 20;
    QByteArray bytes;
    if (version < 3) {
        record.tornOutScreens.clear();
        record.dockNames.clear();
        record.dockRects.clear();
        record.dockScreens.clear();
        record.screens.clear();
        bytes = record.write().chopped(modeSize + emptyDocksSize);
    } else {
        bytes = record.write().chopped(modeSize);
    }
    bytes[3] = version;
    return bytes;
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

} // namespace

class tst_workspace_handler : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    }
    void restoresArrangement();
    void captureFinishesChange();
    void restoreEndsHold();
    void capturesTakeNoNumbers();
    void placesOfPagesThatWentBackAreForgotten();
    void dockBehindOthersHasPlaceOfGroup();
    void emptyTabBarsAreHidden();
    void olderVersions_data();
    void olderVersions();
    void missingScreens();
    void badData_data();
    void badData();
    void missingTabWidgets();
    void ribbonRules();
    void startupIsGuarded();
    void widgetsMayDie_data();
    void widgetsMayDie();
    void restoreInRestoreIsRefused();
    void paintsOnce();
    void animationsAreBlocked();
    void pagesGetTheirFirstOrderAndCleanNames();
    void dockingIsTakenAndGivenBack();
    void studioIsWatched();
};

void tst_workspace_handler::restoresArrangement()
{
    WorkSpaceWindow window;
    auto *cloud = new QLabel(&window);
    cloud->setObjectName(QStringLiteral("ZelCloudWidget"));
    cloud->show();
    QCoreApplication::processEvents();
    const QByteArray plain = capture(window);
    arrange(window);
    const QByteArray changed = capture(window);
    QVERIFY(plain != changed);

    QVERIFY(restore(window, plain));
    QVERIFY(cloud->isHidden());
    QCOMPARE(capture(window), plain);
    QCOMPARE(window.library->count(), 5);
    ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("EnableDocking"), false);
    QVERIFY(restore(window, changed));
    QCOMPARE(capture(window), changed);
    QCOMPARE(window.library->getHiddenChildren().size(), 1);
    QCOMPARE(window.library->currentIndex(), 1);
    QCOMPARE(window.subTabs->currentIndex(), 2);
    QCOMPARE(window.toolBar->currentIconSizeMode(), ZelToolBar::LargeIcons);
    QCOMPARE(window.ribbon->property("ForceNotificationUpdate"), QVariant(true));
    QCOMPARE(window.docks[0]->geometry(), QRect(2000, 100, 260, 300));

    // A new window that isn't shown yet, as at a start, comes up the same.
    WorkSpaceWindow second(false);
    QVERIFY(restore(second, changed, true));
    second.show();
    QCoreApplication::processEvents();
    QCOMPARE(capture(second), changed);
}

/// While a dock goes, the others are held: what is taken down is what comes of it.
void tst_workspace_handler::captureFinishesChange()
{
    WorkSpaceWindow window;
    window.docks[2]->setFixedWidth(170);
    QCoreApplication::processEvents();
    const QByteArray plain = capture(window);
    window.docks[0]->setFloating(true);
    window.docks[1]->hide();
    QVERIFY(ZelDockHold::isPending(&window));
    const QByteArray changed = capture(window);
    QVERIFY(!ZelDockHold::isPending(&window));
    QCOMPARE(window.docks[2]->maximumWidth(), 170);
    QCOMPARE(window.docks[3]->maximumWidth(), QWIDGETSIZE_MAX);
    QCoreApplication::processEvents();
    QCOMPARE(capture(window), changed);
    QVERIFY(restore(window, plain));
    QVERIFY(restore(window, changed));
    QCOMPARE(capture(window), changed);
}

/// The end of a hold would let go of the docks that a restore places.
void tst_workspace_handler::restoreEndsHold()
{
    WorkSpaceWindow window;
    QCoreApplication::processEvents();
    const QByteArray plain = capture(window);
    window.docks[1]->hide();
    QVERIFY(ZelDockHold::isPending(&window));
    bool isHeld = true;
    const auto look = [&window, &isHeld] {
        isHeld = !WorkSpaceHandler::isInWorkspaceRestore() || ZelDockHold::isPending(&window);
    };
    QMetaObject::invokeMethod(&window, look, Qt::QueuedConnection);
    QVERIFY(restore(window, plain));
    QVERIFY(!isHeld);
    QCOMPARE(capture(window), plain);
}

void tst_workspace_handler::capturesTakeNoNumbers()
{
    WorkSpaceWindow window;
    ZelDockWidgetFromTab *dock = window.library->changeTab2Window(1);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->setFloating(false);
    ZelDockHold::release(&window);
    QCoreApplication::processEvents();
    const QByteArray docked = capture(window);
    const ZelSettings settings(dock->page()->objectName() + QLatin1String("DockWdg"));
    dock->setFloating(true);
    dock->move(300, 200);
    const QVariant number = settings.value(QStringLiteral("windowSeq"));
    QVERIFY(number.toUInt() > 0);
    for (const int x : {310, 320, 330}) {
        capture(window);
        dock->move(x, 200);
    }
    QCOMPARE(settings.value(QStringLiteral("windowSeq")), number);

    QVERIFY(restore(window, docked));
    QCOMPARE(capture(window), docked);
    QCOMPARE(settings.value(QStringLiteral("windowSeq")), number);
}

void tst_workspace_handler::placesOfPagesThatWentBackAreForgotten()
{
    WorkSpaceWindow window;
    QWidget *page = window.library->widget(1);
    const auto dockPage = [&window, page](Qt::DockWidgetArea area) {
        ZelDockWidgetFromTab *dock =
            window.library->changeTab2Window(window.library->indexOf(page));
        window.addDockWidget(area, dock);
        dock->setFloating(false);
        ZelDockHold::release(&window);
        QCoreApplication::processEvents();
        return dock;
    };
    ZelDockWidgetFromTab *dock = dockPage(Qt::LeftDockWidgetArea);
    window.tabifyDockWidget(window.docks[0], dock);
    window.tabifyDockWidget(dock, window.docks[2]);
    QCoreApplication::processEvents();
    capture(window);
    dock->forceRestoreInView();
    ZelDockHold::release(&window);
    QCoreApplication::processEvents();
    const QByteArray back = capture(window);
    QVERIFY(restore(window, back));
    QCOMPARE(capture(window), back);
    QCOMPARE(window.tabifiedDockWidgets(window.docks[0]), {window.docks[2]});

    dockPage(Qt::RightDockWidgetArea);
    const QByteArray right = capture(window);
    QVERIFY(restore(window, right));
    QCOMPARE(capture(window), right);
    QCOMPARE(window.dockWidgetArea(window.library->getChildren().constFirst()),
             Qt::RightDockWidgetArea);
}

void tst_workspace_handler::dockBehindOthersHasPlaceOfGroup()
{
    WorkSpaceWindow window;
    window.tabifyDockWidget(window.docks[0], window.docks[1]);
    window.tabifyDockWidget(window.docks[1], window.docks[2]);
    window.docks[1]->setFloating(true);
    window.docks[1]->setGeometry(300, 250, 260, 200);
    window.docks[2]->raise();
    ZelDockHold::release(&window);
    QCoreApplication::processEvents();
    const WorkSpaceRecord record = WorkSpaceRecord::read(capture(window));
    QCOMPARE(record.dockNames.value(0), window.docks[0]->objectName());
    QCOMPARE(record.dockRects.value(0), window.docks[2]->geometry());
}

/// Of two bars that are made for one group, one is left over.
void tst_workspace_handler::emptyTabBarsAreHidden()
{
    WorkSpaceWindow window;
    QCoreApplication::processEvents();
    const auto tabCounts = [&window] {
        QCoreApplication::processEvents();
        QList<int> counts;
        for (auto *bar : window.findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (bar->isVisible())
                counts.append(bar->count());
        }
        return counts;
    };
    window.tabifyDockWidget(window.docks[1], window.docks[3]);
    QCOMPARE(tabCounts(), QList<int>{2});
    window.tabifyDockWidget(window.docks[0], window.docks[2]);
    QCOMPARE(tabCounts(), (QList<int>{2, 2}));
    const QByteArray tabbed = capture(window);
    window.addDockWidget(Qt::LeftDockWidgetArea, window.docks[2]);
    window.addDockWidget(Qt::RightDockWidgetArea, window.docks[3]);
    QCOMPARE(tabCounts(), QList<int>());
    // They come back with their tabs.
    QVERIFY(restore(window, tabbed));
    QCOMPARE(tabCounts(), (QList<int>{2, 2}));
}

void tst_workspace_handler::olderVersions_data()
{
    QTest::addColumn<int>("version");
    QTest::newRow("2") << 2;
    QTest::newRow("3") << 3;
}

void tst_workspace_handler::olderVersions()
{
    QFETCH(int, version);
    WorkSpaceWindow window;
    QCoreApplication::processEvents();
    const QByteArray plain = capture(window);
    arrange(window);
    const WorkSpaceRecord wanted = WorkSpaceRecord::read(capture(window));
    QVERIFY(restore(window, plain));

    QVERIFY(restore(window, ofVersion(wanted, char(version))));
    const WorkSpaceRecord found = WorkSpaceRecord::read(capture(window));
    QCOMPARE(found.tornOutNames, wanted.tornOutNames);
    QCOMPARE(found.tornOutRects, wanted.tornOutRects);
    QCOMPARE(found.libraryTabOrder, wanted.libraryTabOrder);
    QCOMPARE(found.mainWindowState, wanted.mainWindowState);
    // Without a mode, the size of the icons decides.
    QCOMPARE(window.toolBar->currentIconSizeMode(), ZelToolBar::LargeIcons);
}

void tst_workspace_handler::missingScreens()
{
    WorkSpaceWindow window;
    QCoreApplication::processEvents();
    arrange(window);
    WorkSpaceRecord record = WorkSpaceRecord::read(capture(window));
    const QRect gone(5000, 0, 1600, 1200);
    record.screens.append(gone);
    for (int i = 0; i < int(record.dockNames.size()); ++i) {
        record.dockRects[i] = QRect(6000, 900, 300, 200);
        record.dockScreens[i] = 2;
    }
    for (int i = 0; i < int(record.tornOutNames.size()); ++i) {
        record.tornOutRects[i] = QRect(5100, 100, 5000, 5000);
        record.tornOutScreens[i] = 2;
    }
    QVERIFY(restore(window, record.write()));
    const QRect present = QGuiApplication::screens().first()->availableGeometry();
    int floating = 0;
    for (const ZelDockWidget *dock : window.findChildren<ZelDockWidget *>()) {
        if (!dock->isFloating() || dock->isHidden() || !dock->contentsWidget())
            continue;
        ++floating;
        QVERIFY2(present.contains(dock->geometry()), qPrintable(dock->objectName()));
    }
    QVERIFY(floating >= 2);
    QCOMPARE(window.docks[0]->pos(), QPoint(1000, 880));
}

void tst_workspace_handler::badData_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("isRefused");
    WorkSpaceRecord unequal;
    unequal.tornOutNames = QStringList{QStringLiteral("L1")};
    WorkSpaceRecord reserved;
    reserved.reservedNames = QStringList{QStringLiteral("L1")};
    WorkSpaceRecord foreign;
    foreign.mainWindowState = "no state of a window";
    foreign.tornOutNames = QStringList{QStringLiteral("nobody"), QString()};
    foreign.tornOutRects = {QRect(), QRect(-90000, 90000, 1, 90000)};
    foreign.libraryTabIndex = -5;
    foreign.projectTabIndex = 4711;
    foreign.toolBarIconSize = QSize(1, 1);
    foreign.toolBarMode = 77;
    foreign.toolButtonStyle = -3;
    QTest::newRow("nothing") << QByteArray() << true;
    QTest::newRow("junk") << QByteArray(300, '\xff') << true;
    QTest::newRow("zeros") << QByteArray(60, '\0') << true;
    QTest::newRow("fewer rectangles than pages") << unequal.write() << true;
    QTest::newRow("reserved list of another length") << reserved.write() << true;
    QTest::newRow("foreign") << foreign.write() << false;
}

void tst_workspace_handler::badData()
{
    QFETCH(QByteArray, data);
    QFETCH(bool, isRefused);
    const ZelScopedMessageBoxMode mode(ZelMessageBox::NoGui);
    if (isRefused)
        messages().expect(QtCriticalMsg, QStringLiteral("Could not set/restore desktop state"));
    WorkSpaceWindow window;
    QCoreApplication::processEvents();
    arrange(window);
    const QByteArray before = capture(window);
    QVERIFY(!restore(window, data));
    if (isRefused)
        QCOMPARE(capture(window), before);
    QCOMPARE(ZelMessageBox::getMessages(ZelMessageBox::Critical).size(), int(isRefused));
    QCOMPARE(window.library->count() + window.library->getChildren().size(), 5);

    // Cut off behind the layout of the window: all but the tool bar comes back.
    QVERIFY(restore(window, before.chopped(2)));
    QCOMPARE(WorkSpaceRecord::read(capture(window)).mainWindowState,
             WorkSpaceRecord::read(before).mainWindowState);
}

void tst_workspace_handler::missingTabWidgets()
{
    const ZelScopedMessageBoxMode mode(ZelMessageBox::NoGui);
    WorkSpaceWindow window;
    const WorkSpaceRecord nothing =
        WorkSpaceRecord::read(WorkSpaceHandler::getWorkSpaceData(window.library, nullptr));
    QVERIFY(nothing == WorkSpaceRecord());
    const QByteArray data = capture(window);
    for (QWidget *project : {static_cast<QWidget *>(nullptr), window.centralWidget()}) {
        messages().expect(QtCriticalMsg,
                          QStringLiteral("Internal error in Zelmora (Workspace restore)"));
        QVERIFY(!WorkSpaceHandler::restoreWorkSpace(data, window.library, project, false));
    }
    QCOMPARE(ZelMessageBox::getMessages(ZelMessageBox::Critical).size(), 2);
}

void tst_workspace_handler::ribbonRules()
{
    WorkSpaceWindow window;
    auto *field = new QLabel;
    field->setEnabled(false);
    QAction *own = window.ribbon->addWidget(field);
    own->setObjectName(QStringLiteral("RibbonField"));
    WorkSpaceRecord record = WorkSpaceRecord::read(capture(window));
    const auto shown = [&window] {
        QStringList names;
        for (const QAction *action : window.ribbon->actions()) {
            if (action->isVisible())
                names.append(action->isSeparator() ? QStringLiteral("|")
                                                   : action->objectName().mid(6));
        }
        return names.join(u' ');
    };
    record.visibleRibbonIds = QStringList{QStringLiteral("StudiosTggl"), QStringLiteral("GPU")};
    record.hiddenRibbonIds = QStringList{QStringLiteral("Studios"), QStringLiteral("Field")};
    QVERIFY(restore(window, record.write()));
    // What the workspace doesn't know is shown, but nothing of the studios without them.
    QCOMPARE(shown(), QStringLiteral("Script GPU | HDPI"));
    record.visibleRibbonIds.append(QStringLiteral("Field"));
    record.hiddenRibbonIds.clear();
    QVERIFY(restore(window, record.write()));
    QCOMPARE(shown(), QStringLiteral("GPU | StudiosTggl | Field"));
    QVERIFY(!field->isEnabled());
    QVERIFY(window.ribbon->widgetForAction(window.ribbon->actions()[4])->isEnabled());
    record.visibleRibbonIds.clear();
    QVERIFY(restore(window, record.write()));
    QCOMPARE(shown(), QStringLiteral("|"));
}

void tst_workspace_handler::startupIsGuarded()
{
    WorkSpaceWindow window;
    const QByteArray data = capture(window);
    QByteArray storedInside;
    bool inside = false;
    QTimer::singleShot(0, &window, [&] {
        inside = WorkSpaceHandler::isInWorkspaceRestore();
        QFile file(settingsFile());
        if (file.open(QIODevice::ReadOnly))
            storedInside = file.readAll();
    });
    QVERIFY(restore(window, data, true));
    QVERIFY(inside);
    QVERIFY(!WorkSpaceHandler::isInWorkspaceRestore());
    // Were the process killed now, the next one would know.
    QVERIFY(storedInside.contains("DoingStartupRestore"));
    const QString copy = writeFile(QStringLiteral("killed.json"), storedInside);
    const QString own = ZelSettings::storePath();
    ZelSettings::setStorePath(copy);
    QVERIFY(WorkSpaceHandler::mayHaveStartupRestoreIssue());
    WorkSpaceHandler::clearStartupIssueFlag();
    QVERIFY(!WorkSpaceHandler::mayHaveStartupRestoreIssue());
    ZelSettings::setStorePath(own);
    QVERIFY(!WorkSpaceHandler::mayHaveStartupRestoreIssue());
}

void tst_workspace_handler::widgetsMayDie_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<int>("phase");
    for (const char *victim : {"page", "torn-out window", "dock", "ribbon", "tool bar", "library",
                               "project", "window"}) {
        for (int phase : {1, 2})
            QTest::addRow("%s in phase %d", victim, phase) << QString::fromLatin1(victim) << phase;
    }
}

void tst_workspace_handler::widgetsMayDie()
{
    QFETCH(QString, victim);
    QFETCH(int, phase);
    auto window = std::make_unique<WorkSpaceWindow>();
    QCoreApplication::processEvents();
    arrange(*window);
    const QByteArray data = capture(*window);
    bool died = false;
    const auto kill = [&] {
        const QList<ZelDockWidgetFromTab *> tornOut = window->library->getChildren();
        const QHash<QString, QObject *> victims{
            {QStringLiteral("page"), tornOut.first()->page()},
            {QStringLiteral("torn-out window"), tornOut.last()},
            {QStringLiteral("dock"), window->docks[0]},
            {QStringLiteral("ribbon"), window->ribbon},
            {QStringLiteral("tool bar"), window->toolBar},
            {QStringLiteral("library"), window->library},
            {QStringLiteral("project"), window->project},
        };
        died = WorkSpaceHandler::isInWorkspaceRestore();
        if (victim == QLatin1String("window"))
            window.reset();
        else
            delete victims[victim];
    };
    // Each phase processes events once.
    if (phase == 1)
        QTimer::singleShot(0, qApp, kill);
    else
        QTimer::singleShot(0, qApp, [&kill] { QTimer::singleShot(0, qApp, kill); });
    const bool restored = restore(*window, data);
    QVERIFY(died);
    QCOMPARE(restored, phase == 2 || victim != QLatin1String("window"));
    QVERIFY(!WorkSpaceHandler::isInWorkspaceRestore());
}

void tst_workspace_handler::restoreInRestoreIsRefused()
{
    WorkSpaceWindow window;
    const QByteArray data = capture(window);
    bool inner = true;
    messages().expect(QtWarningMsg, QStringLiteral("A workspace is being restored already"));
    QTimer::singleShot(0, &window, [&] { inner = restore(window, data); });
    QVERIFY(restore(window, data));
    QVERIFY(!inner);
}

void tst_workspace_handler::paintsOnce()
{
    WorkSpaceWindow window;
    QCoreApplication::processEvents();
    const QByteArray plain = capture(window);
    arrange(window);
    const QByteArray changed = capture(window);
    PaintCounter central(window.centralWidget());
    PaintCounter dock(window.docks[0]);
    for (const QByteArray &data : {plain, changed}) {
        central.count = 0;
        dock.count = 0;
        // What is still to be painted must not get lost.
        window.update();
        QVERIFY(restore(window, data));
        QCoreApplication::processEvents();
        QVERIFY(central.count >= 1 && dock.count >= 1);
        QVERIFY2(central.count <= 2, qPrintable(QString::number(central.count)));
        central.count = 0;
        dock.count = 0;
        window.centralWidget()->update();
        window.docks[0]->update();
        QTRY_VERIFY(central.count > 0 && dock.count > 0);
    }
}

void tst_workspace_handler::animationsAreBlocked()
{
    ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("BlockWorkspaceAnimations"), true);
    WorkSpaceWindow window;
    ZelDockWidget *dock = window.docks[0];
    const QByteArray data = capture(window);
    const auto duration = [dock] {
        return dock->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, dock);
    };
    const int plain = duration();
    int inside = -1;
    QTimer::singleShot(0, &window, [&] { inside = duration(); });
    QVERIFY(restore(window, data));
    QVERIFY(plain > 0);
    QCOMPARE(inside, 0);
    QCOMPARE(duration(), plain);
    QCOMPARE(dock->style(), QApplication::style());
}

void tst_workspace_handler::pagesGetTheirFirstOrderAndCleanNames()
{
    WorkSpaceWindow window;
    window.project->addTab(WorkSpaceWindow::makePage(QStringLiteral("My page/1")),
                           QStringLiteral("Mine"));
    window.project->tabBar()->moveTab(5, 0);
    const QByteArray data = capture(window);
    window.project->tabBar()->moveTab(0, 3);
    QVERIFY(restore(window, data));
    QCOMPARE(window.project->widget(0)->objectName(), QStringLiteral("My_page_1"));
    QCOMPARE(window.pages[3]->property("OrgTabOrder"), QVariant(3));
    // A page that the workspace doesn't know comes last.
    window.project->insertTab(0, WorkSpaceWindow::makePage(QStringLiteral("New")),
                              QStringLiteral("New"));
    QVERIFY(restore(window, data));
    QCOMPARE(WorkSpaceWindow::order(window.project).join(u' '),
             QStringLiteral("My_page_1 P1 P2 P3 P4 P5 New"));
}

void tst_workspace_handler::dockingIsTakenAndGivenBack()
{
    WorkSpaceWindow window;
    window.tabifyDockWidget(window.docks[0], window.docks[2]);
    window.docks[1]->hide();
    QCoreApplication::processEvents();
    const QByteArray docked = capture(window);
    const QPoint place = window.docks[2]->mapToGlobal(QPoint());

    WorkSpaceHandler::disableDockWidgets(&window);
    WorkSpaceHandler::disableDockWidgets(nullptr);
    for (const ZelDockWidget *dock : std::as_const(window.docks)) {
        QVERIFY(dock->isFloating());
        QCOMPARE(dock->allowedAreas(), Qt::NoDockWidgetArea);
    }
    QVERIFY(window.docks[1]->isHidden());
    // The one that stood behind is where the other one stood, not out of sight.
    QCOMPARE(window.docks[0]->pos(), place);
    QCOMPARE(window.docks[2]->pos(), place);

    QVERIFY(restore(window, docked));
    QCOMPARE(capture(window), docked);
    QCOMPARE(window.docks[0]->allowedAreas(), Qt::AllDockWidgetAreas);
}

void tst_workspace_handler::studioIsWatched()
{
    ZelSettings settings(QStringLiteral("WorkSpaces"));
    settings.setValue(QStringLiteral("debugEnabledOnWS"), true);
    WorkSpaceWindow window;
    window.docks[0]->setObjectName(QStringLiteral("StudioDockWidget"));
    QByteArray data = capture(window);
    restore(window, data);
    const auto points = [this] {
        const QStringList found =
            messages().messages(QtDebugMsg).filter(QStringLiteral("Studio was expected"));
        QStringList points;
        for (const QString &text : found)
            points.append(text.section(u'"', 0, 0).section(QStringLiteral("hidden:"), 1));
        return points;
    };
    QCOMPARE(points().size(), 3);
    QVERIFY(points()[2].contains(
        QLatin1String("at restore 3 - Called from  WorkSpaceInformation::restoreState (line)")));
    QCOMPARE(settings.value(QStringLiteral("debugExpectToolbarVisible")), QVariant(true));
    window.setProperty("ClosingZelmora", true);
    data = capture(window);
    QCOMPARE(points().size(), 3);
}

ZEL_TEST_MAIN(tst_workspace_handler)
#include "tst_workspace_handler.moc"
