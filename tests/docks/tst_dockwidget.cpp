#include "docks/ZelDockGeometry.h"
#include "docks/ZelDocking.h"

#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetTitle>
#include <ZelWidgets/ZelToolButton>

#include <QMainWindow>
#include <QScreen>
#include <QSignalSpy>

namespace {

class Window : public QMainWindow
{
public:
    Window()
    {
        setCentralWidget(new QWidget);
        resize(900, 600);
        move(100, 100);
    }

    ZelDockWidget *addDock(const QString &name, Qt::DockWidgetArea area = Qt::LeftDockWidgetArea)
    {
        auto *dock = new ZelDockWidget(name, name, true, this);
        auto *contents = new QWidget;
        contents->setMinimumSize(60, 60);
        dock->setContentsWidget(contents);
        addDockWidget(area, dock);
        dock->show();
        return dock;
    }
};

void switchDocking(bool on)
{
    ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("EnableDocking"), on);
}

ZelToolButton *button(ZelDockWidget *dock, const QString &tip)
{
    for (auto *candidate : dock->zelTitleWidget()->findChildren<ZelToolButton *>()) {
        if (candidate->toolTip() == tip)
            return candidate;
    }
    return nullptr;
}

void doubleClick(QWidget *widget)
{
    QTest::mouseDClick(widget, Qt::LeftButton, {}, widget->rect().center());
}

/// Press, move and release at points of the desktop, sent to the dock itself.
void dragGlobally(ZelDockWidget *dock, const QPoint &from, const QPoint &to)
{
    UserInput::press(dock, dock->mapFromGlobal(from));
    UserInput::move(dock, dock->mapFromGlobal(to));
    UserInput::release(dock, dock->mapFromGlobal(to));
}

} // namespace

class tst_dockwidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    }
    void edges_data();
    void edges();
    void edgeDrags_data();
    void edgeDrags();
    void snaps_data();
    void snaps();
    void floatsByTitleUnlessSwitchedOff();
    void titleShowsButtonsOfFeatures();
    void edgeOfFloaterIsDragged();
    void edgeShowsCursorOnFrame();
    void floaterSnapsToScreen();
    void hidingLeavesNeighbourAsItIs();
    void heldDockOfDyingWindowIsReleased();
    void closesTwiceAndOpensOnce();
    void floatsInMiddleWhenForced();
    void contentsAreReplaced();
    void sizeOfEachScreenComesBack();
};

void tst_dockwidget::edges_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("edges");
    QTest::addColumn<Qt::CursorShape>("cursor");
    QTest::newRow("left") << QPoint(104, 150) << 1 << Qt::SizeHorCursor;
    QTest::newRow("behind left") << QPoint(105, 150) << 0 << Qt::ArrowCursor;
    QTest::newRow("right") << QPoint(295, 150) << 2 << Qt::SizeHorCursor;
    QTest::newRow("before right") << QPoint(294, 150) << 0 << Qt::ArrowCursor;
    QTest::newRow("top") << QPoint(200, 104) << 4 << Qt::SizeVerCursor;
    QTest::newRow("below top") << QPoint(200, 105) << 0 << Qt::ArrowCursor;
    QTest::newRow("bottom") << QPoint(200, 192) << 8 << Qt::SizeVerCursor;
    QTest::newRow("above bottom") << QPoint(200, 191) << 0 << Qt::ArrowCursor;
    QTest::newRow("top left") << QPoint(100, 100) << 5 << Qt::SizeFDiagCursor;
    QTest::newRow("bottom right") << QPoint(299, 199) << 10 << Qt::SizeFDiagCursor;
    QTest::newRow("top right") << QPoint(299, 100) << 6 << Qt::SizeBDiagCursor;
    QTest::newRow("bottom left") << QPoint(100, 199) << 9 << Qt::SizeBDiagCursor;
    QTest::newRow("outside") << QPoint(99, 150) << 0 << Qt::ArrowCursor;
}

void tst_dockwidget::edges()
{
    QFETCH(QPoint, point);
    QFETCH(int, edges);
    QFETCH(Qt::CursorShape, cursor);
    QCOMPARE(ZelDockGeometry::edgesAt(QRect(100, 100, 200, 100), point), edges);
    QCOMPARE(ZelDockGeometry::cursorFor(edges), cursor);
}

void tst_dockwidget::edgeDrags_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<QRect>("result");
    QTest::newRow("left out") << 1 << QPoint(-10, 7) << QRect(90, 100, 210, 100);
    QTest::newRow("left in to the minimum") << 1 << QPoint(180, 0) << QRect(220, 100, 80, 100);
    QTest::newRow("right in to the minimum") << 2 << QPoint(-180, 0) << QRect(100, 100, 60, 100);
    QTest::newRow("top") << 4 << QPoint(5, -20) << QRect(100, 80, 200, 120);
    QTest::newRow("bottom right") << 10 << QPoint(30, 40) << QRect(100, 100, 230, 140);
}

void tst_dockwidget::edgeDrags()
{
    QFETCH(int, edges);
    QFETCH(QPoint, way);
    QFETCH(QRect, result);
    QCOMPARE(ZelDockGeometry::dragged(QRect(100, 100, 200, 100), edges, way, QSize(80, 50),
                                      QSize(60, 40)),
             result);
}

void tst_dockwidget::snaps_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QPoint>("result");
    QTest::newRow("left, 9 away") << QPoint(1009, 300) << QPoint(1000, 300);
    QTest::newRow("left, 10 away") << QPoint(1010, 300) << QPoint(1010, 300);
    QTest::newRow("left, outside") << QPoint(991, 300) << QPoint(1000, 300);
    QTest::newRow("right, 9 away") << QPoint(1691, 300) << QPoint(1700, 300);
    QTest::newRow("right, 10 away") << QPoint(1690, 300) << QPoint(1690, 300);
    QTest::newRow("top") << QPoint(1300, 29) << QPoint(1300, 20);
    QTest::newRow("bottom stays") << QPoint(1300, 715) << QPoint(1300, 715);
    QTest::newRow("corner") << QPoint(1003, 15) << QPoint(1000, 20);
}

void tst_dockwidget::snaps()
{
    QFETCH(QPoint, position);
    QFETCH(QPoint, result);
    QCOMPARE(ZelDockGeometry::snapped(QRect(position, QSize(300, 100)), QRect(1000, 20, 1000, 800)),
             result);
}

void tst_dockwidget::floatsByTitleUnlessSwitchedOff()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    window.show();
    QSignalSpy pressed(dock, &ZelDockWidget::titleBarPressed);
    QSignalSpy released(dock, &ZelDockWidget::titleBarReleased);

    switchDocking(false);
    doubleClick(dock->zelTitleWidget());
    button(dock, QStringLiteral("Float"))->click();
    QVERIFY(!dock->isFloating());

    switchDocking(true);
    QVERIFY(button(dock, QStringLiteral("Dock"))->isHidden());
    pressed.clear();
    released.clear();
    button(dock, QStringLiteral("Float"))->click();
    QVERIFY(dock->isFloating());
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QVERIFY(button(dock, QStringLiteral("Dock"))->isVisible());
    QTRY_VERIFY((doubleClick(dock->zelTitleWidget()), !dock->isFloating()));

    dock->setFeatures(QDockWidget::DockWidgetClosable);
    doubleClick(dock->zelTitleWidget());
    QVERIFY(!dock->isFloating());
}

void tst_dockwidget::titleShowsButtonsOfFeatures()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    window.show();
    QVERIFY(button(dock, QStringLiteral("Close"))->isVisible());
    dock->setFeatures(QDockWidget::DockWidgetFloatable);
    QVERIFY(!button(dock, QStringLiteral("Close"))->isVisible());
    QVERIFY(button(dock, QStringLiteral("Float"))->isVisible());

    const QSize hint = dock->zelTitleWidget()->sizeHint();
    QCOMPARE(hint,
             QSize(100, qMax(20, dock->zelTitleWidget()->fontMetrics().height() * 105 / 100)));
    QVERIFY(dock->hitTest(dock->zelTitleWidget()->mapToGlobal(QPoint(3, 3))));
    QVERIFY(!dock->hitTest(dock->contentsWidget()->mapToGlobal(QPoint(3, 3))));
    // A press lets the drag move this dock alone.
    window.setDockOptions(window.dockOptions() | QMainWindow::GroupedDragging);
    UserInput::press(dock->zelTitleWidget(), QPoint(30, 8));
    QVERIFY(!window.dockOptions().testFlag(QMainWindow::GroupedDragging));
    UserInput::release(dock->zelTitleWidget(), QPoint(30, 8));
    UserInput::move(dock->zelTitleWidget(), QPoint(31, 8), {}, Qt::NoButton);
    QVERIFY(window.dockOptions().testFlag(QMainWindow::GroupedDragging));
}

void tst_dockwidget::edgeOfFloaterIsDragged()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    window.show();
    dock->setFloating(true);
    dock->setGeometry(300, 300, 200, 200);
    QCoreApplication::processEvents();

    dragGlobally(dock, QPoint(301, 400), QPoint(271, 405));
    QCOMPARE(dock->geometry(), QRect(270, 300, 230, 200));
    dragGlobally(dock, QPoint(498, 498), QPoint(518, 478));
    QCOMPARE(dock->geometry(), QRect(270, 300, 250, 180));
    dragGlobally(dock, QPoint(271, 400), QPoint(900, 400));
    QCOMPARE(dock->geometry().right(), 519);
    QCOMPARE(dock->width(), dock->minimumSizeHint().expandedTo(dock->minimumSize()).width());

    dock->setFloating(false);
    const QRect docked = dock->geometry();
    UserInput::drag(dock, QPoint(1, 50), QPoint(-40, 50));
    QCOMPARE(dock->geometry(), docked);
}

void tst_dockwidget::edgeShowsCursorOnFrame()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    window.show();
    dock->setFloating(true);
    dock->setGeometry(300, 300, 200, 200);
    QCoreApplication::processEvents();
    const QPoint corner(0, dock->height() - 1);
    // The pointer may come back without a move.
    for (int round = 0; round < 2; ++round) {
        QEnterEvent enter(corner, corner, dock->mapToGlobal(corner));
        QCoreApplication::sendEvent(dock, &enter);
        QCOMPARE(dock->cursor().shape(), Qt::SizeBDiagCursor);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(dock, &leave);
        QCOMPARE(dock->cursor().shape(), Qt::ArrowCursor);
    }
}

void tst_dockwidget::floaterSnapsToScreen()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    window.show();
    dock->setFloating(true);
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    dock->move(area.left() + 9, area.top() + 200);
    QTRY_COMPARE(dock->x(), area.left());
    dock->move(area.left() + 10, area.top() + 200);
    QCoreApplication::processEvents();
    QCOMPARE(dock->x(), area.left() + 10);
}

void tst_dockwidget::hidingLeavesNeighbourAsItIs()
{
    Window window;
    ZelDockWidget *left = window.addDock(QStringLiteral("left"));
    ZelDockWidget *other = window.addDock(QStringLiteral("other"));
    window.splitDockWidget(left, other, Qt::Horizontal);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.resizeDocks({left, other}, {200, 240}, Qt::Horizontal);
    QCoreApplication::processEvents();
    const int width = other->width();

    left->hide();
    QCOMPARE(other->maximumWidth(), width);
    QTRY_COMPARE(other->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(other->width(), width);

    left->show();
    QCoreApplication::processEvents();
    const ZelDocking::RestoreScope restore;
    left->hide();
    QCOMPARE(other->maximumWidth(), QWIDGETSIZE_MAX);
}

/// Docks that float together lose their window when but one of them is left in it.
void tst_dockwidget::heldDockOfDyingWindowIsReleased()
{
    Window window;
    auto *group = new QWidget(&window, Qt::Window);
    auto *leaving = new ZelDockWidget(QStringLiteral("A"), QStringLiteral("A"), true, group);
    auto *staying = new ZelDockWidget(QStringLiteral("B"), QStringLiteral("B"), true, group);
    window.show();
    leaving->show();
    staying->show();
    group->show();
    leaving->hide();
    QCOMPARE(staying->minimumHeight(), staying->maximumHeight());
    staying->setParent(&window);
    delete group;
    QTRY_COMPARE(staying->maximumHeight(), QWIDGETSIZE_MAX);
}

void tst_dockwidget::closesTwiceAndOpensOnce()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    QSignalSpy opened(dock, &ZelDockWidget::opened);
    QSignalSpy closed(dock, &ZelDockWidget::closed);
    window.show();
    QCOMPARE(opened.count(), 1);
    button(dock, QStringLiteral("Close"))->click();
    QCOMPARE(closed.count(), 2);
    QVERIFY(dock->isHidden());
}

void tst_dockwidget::floatsInMiddleWhenForced()
{
    ZelSettings(QStringLiteral("ForceFloatingWdg")).setValue(QStringLiteral("forced"), true);
    Window window;
    window.show();
    ZelDockWidget *dock = window.addDock(QStringLiteral("forced"));
    QVERIFY(dock->isFloating());
    const QRect central(window.centralWidget()->mapToGlobal(QPoint(0, 0)),
                        window.centralWidget()->size());
    QVERIFY(central.contains(dock->pos() + dock->rect().center()));

    ZelDockWidget *restored = window.addDock(QStringLiteral("other"));
    restored->hide();
    restored->setRestoreInCentralWidget();
    {
        const ZelDocking::RestoreScope restore;
        restored->show();
    }
    restored->hide();
    restored->show();
    QVERIFY(!restored->isFloating());
}

void tst_dockwidget::contentsAreReplaced()
{
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    const QPointer<QWidget> owned = dock->contentsWidget();
    auto *next = new QWidget;
    dock->setContentsWidget(next);
    QTRY_VERIFY(!owned);
    QCOMPARE(dock->contentsWidget(), next);
    next->setParent(&window);
    dock->setContentsWidget(nullptr);
    QCoreApplication::sendPostedEvents(next, QEvent::DeferredDelete);
    QCOMPARE(next->parentWidget(), &window);
    delete next;
}

void tst_dockwidget::sizeOfEachScreenComesBack()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    Window window;
    ZelDockWidget *dock = window.addDock(QStringLiteral("dock"));
    window.show();
    dock->setFloating(true);
    dock->setGeometry(400, 300, 200, 210);
    QCoreApplication::processEvents();
    QSignalSpy moved(dock, &ZelDockWidget::screenChanged);

    // A press on the title keeps the size of the screen that the dock leaves.
    UserInput::press(dock->zelTitleWidget(), dock->zelTitleWidget()->rect().center());
    UserInput::release(dock->zelTitleWidget(), dock->zelTitleWidget()->rect().center());
    dock->move(screens[1]->geometry().topLeft() + QPoint(200, 200));
    QTRY_COMPARE(moved.count(), 1);
    dock->resize(320, 330);
    dock->move(400, 300);
    QTRY_COMPARE(moved.count(), 2);
    QTRY_COMPARE(dock->size(), QSize(200, 210));
}

ZEL_TEST_MAIN(tst_dockwidget)
#include "tst_dockwidget.moc"
