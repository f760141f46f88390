#include "docks/ZelDocking.h"
#include "docks/ZelDragOutEventFilter.h"
#include "docks/ZelTabDragRules.h"

#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelDockWidgetTitle>
#include <ZelWidgets/ZelEqualSizeTabBar>
#include <ZelWidgets/ZelSimpleTabBar>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>

namespace {

class Window : public QMainWindow
{
public:
    Window()
        : tabs(new ZelTextIconTabWidget)
    {
        auto *central = new QWidget(this);
        setCentralWidget(central);
        tabs->setParent(central);
        tabs->setObjectName(QStringLiteral("Library"));
        tabs->setGeometry(100, 100, 400, 300);
        for (const QString &name :
             {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}) {
            auto *page = new QWidget;
            page->setObjectName(name);
            // Two tabs of one text, told apart all the same.
            tabs->addTab(page, name == QLatin1String("C") ? QStringLiteral("B") : name);
        }
        tabs->setDockHeaderPrefix(QStringLiteral("Library: "));
        tabs->setDockMode(true);
        resize(900, 600);
        move(50, 50);
        show();
    }

    QString order() const
    {
        QString names;
        for (int i = 0; i < tabs->count(); ++i)
            names += tabs->widget(i)->objectName();
        return names;
    }

    QPoint tabCenter(int tab) const { return tabs->tabBar()->tabRect(tab).center(); }

    ZelTextIconTabWidget *tabs;
};

QAction *entryOfPage(QMenu *menu, QWidget *page)
{
    for (QAction *action : menu->actions()) {
        if (action->property("tabPage").value<QPointer<QWidget>>() == page)
            return action;
    }
    return nullptr;
}

void runDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class tst_tabdragout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    }
    void tearOutDistance_data();
    void tearOutDistance();
    void reorderTarget_data();
    void reorderTarget();
    void tabBarsHaveTheirSizes();
    void wheelLeavesTab();
    void pageGoesOutAndComesBack();
    void dockButtonPutsPageBack();
    void lastTabStays();
    void dragTearsOutAndFollows();
    void escapeCancelsDrag();
    void dragReordersAndIsStored();
    void nearDragDoesNothing();
    void clickFocusesPage();
    void menuTearsOutAndPutsBack();
    void menuMovesTabs();
    void menuChoosesHeaderStyle();
    void namesAreNumberedByMoves();
    void ownersMayDie_data();
    void ownersMayDie();
};

void tst_tabdragout::tearOutDistance_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("isOut");
    QTest::newRow("inside") << QPoint(150, 110) << false;
    QTest::newRow("below, near") << QPoint(150, 158) << false;
    QTest::newRow("below, far") << QPoint(150, 159) << true;
    QTest::newRow("above, far") << QPoint(150, 60) << true;
    QTest::newRow("beside, both ways count") << QPoint(320, 141) << true;
    QTest::newRow("beside, near") << QPoint(320, 137) << false;
}

void tst_tabdragout::tearOutDistance()
{
    QFETCH(QPoint, pointer);
    QFETCH(bool, isOut);
    QCOMPARE(ZelTabDragRules::isTornOut(QRect(100, 100, 200, 20), pointer, 10), isOut);
}

void tst_tabdragout::reorderTarget_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("right, before the centre") << 0 << 140 << 0 << false;
    QTest::newRow("right, past the centre") << 0 << 160 << 1 << false;
    QTest::newRow("right, beyond all") << 0 << 900 << 2 << false;
    QTest::newRow("left, past the centre") << 2 << 160 << 2 << false;
    QTest::newRow("left, before the centre") << 2 << 140 << 1 << false;
    QTest::newRow("left, beyond all") << 2 << -50 << 0 << false;
    QTest::newRow("in place") << 1 << 180 << 1 << false;
    QTest::newRow("mirrored, before the centre") << 0 << 160 << 0 << true;
    QTest::newRow("mirrored, past the centre") << 0 << 140 << 1 << true;
    QTest::newRow("mirrored, beyond all") << 0 << -50 << 2 << true;
    QTest::newRow("mirrored, back to the first") << 2 << 900 << 0 << true;
}

void tst_tabdragout::reorderTarget()
{
    QFETCH(int, from);
    QFETCH(int, x);
    QFETCH(int, to);
    QFETCH(bool, mirrored);
    QList<QRect> tabs{{0, 0, 100, 20}, {100, 0, 100, 20}, {200, 0, 100, 20}};
    if (mirrored)
        std::reverse(tabs.begin(), tabs.end());
    QCOMPARE(
        ZelTabDragRules::reorderTarget(tabs, from, x, mirrored ? Qt::RightToLeft : Qt::LeftToRight),
        to);
}

void tst_tabdragout::tabBarsHaveTheirSizes()
{
    ZelEqualSizeTabBar equal;
    equal.addTab(QStringLiteral("a"));
    equal.addTab(QStringLiteral("the widest of all"));
    QCOMPARE(equal.tabRect(0).width(), equal.tabRect(1).width());
    QCOMPARE(equal.tabRect(0).height(), equal.fontMetrics().height() + 10);

    ZelSimpleTabBar simple;
    simple.addTab(QStringLiteral("first"));
    simple.addTab(QStringLiteral("second"));
    QCOMPARE(simple.tabRect(1).width(), 0);
    simple.setCurrentIndex(1);
    QCOMPARE(simple.tabRect(0).width(), 0);
    QVERIFY(simple.tabRect(1).width() > 0);

    Window window;
    ZelTextIconTabBar *bar = window.tabs->decoratedTabBar();
    const int text = bar->fontMetrics().height() + 10;
    QCOMPARE(bar->tabRect(0).height(), text + bar->iconSize().height());
    bar->setTabHeaderStyle(ZelTextIconTabBar::IconStyle);
    QCOMPARE(bar->tabRect(0).height(), 26);
    bar->setTabHeaderStyle(0);
    QCOMPARE(bar->tabHeaderStyle(), int(ZelTextIconTabBar::TextStyle));
    QCOMPARE(bar->tabRect(0).height(), text);
}

void tst_tabdragout::wheelLeavesTab()
{
    Window window;
    QVERIFY(!UserInput::wheel(window.tabs->tabBar(), -1));
    QCOMPARE(window.tabs->currentIndex(), 0);
}

void tst_tabdragout::pageGoesOutAndComesBack()
{
    Window window;
    const int width = window.tabs->minimumSizeHint().width();
    QWidget *page = window.tabs->widget(0);
    const QPointer<ZelDockWidgetFromTab> dock = window.tabs->changeTab2Window(0);
    QVERIFY(dock);
    QCOMPARE(window.order(), QStringLiteral("BC"));
    QCOMPARE(window.tabs->actualCount(), 3);
    QCOMPARE(window.tabs->minimumSizeHint().width(), width);
    QCOMPARE(window.tabs->getChildren(), QList<ZelDockWidgetFromTab *>{dock});
    QVERIFY(dock->isFloating() && dock->isVisible() && page->isVisible());
    QCOMPARE(dock->windowTitle(), QStringLiteral("Library: A"));

    QSignalSpy closed(dock, &ZelDockWidget::closed);
    dock->close();
    QCOMPARE(closed.count(), 1);
    runDeferredDeletes();
    QVERIFY(!dock);
    QCOMPARE(window.order(), QStringLiteral("BCA"));
    QCOMPARE(window.tabs->tabText(2), QStringLiteral("A"));
    QCOMPARE(window.tabs->currentWidget(), page);

    QVERIFY(window.tabs->hasReorderedDialogs());
    QVERIFY(window.tabs->changeTab2Window(0));
    window.tabs->restoreDocked2Tabs();
    QCOMPARE(window.order(), QStringLiteral("ABC"));
    QCOMPARE(window.tabs->currentWidget(), page);
    QVERIFY(!window.tabs->hasReorderedDialogs());
    QVERIFY(!window.tabs->hasChildrenDialogs());
}

void tst_tabdragout::dockButtonPutsPageBack()
{
    Window window;
    const QPointer<ZelDockWidgetFromTab> dock = window.tabs->changeTab2Window(0);
    const auto pressDock = [&dock] {
        for (QToolButton *button : dock->zelTitleWidget()->findChildren<QToolButton *>()) {
            if (button->isVisible() && button->toolTip() == QLatin1String("Dock"))
                return button->click();
        }
        QFAIL("no dock button");
    };
    // With a place among the docks it goes there, without one among the tabs.
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->setFloating(true);
    pressDock();
    QVERIFY(dock && !dock->isFloating());
    QCOMPARE(window.order(), QStringLiteral("BC"));
    window.removeDockWidget(dock);
    dock->setFloating(true);
    dock->show();
    pressDock();
    runDeferredDeletes();
    QVERIFY(!dock);
    QCOMPARE(window.order(), QStringLiteral("BCA"));
}

void tst_tabdragout::lastTabStays()
{
    Window window;
    window.tabs->changeTab2Window(0);
    window.tabs->changeTab2Window(0);
    QVERIFY(!window.tabs->changeTab2Window(0));
    QCOMPARE(window.order(), QStringLiteral("C"));
    const std::unique_ptr<QMenu> menu(window.tabs->decoratedTabBar()->createContextMenu());
    QAction *entry = entryOfPage(menu.get(), window.tabs->widget(0));
    entry->trigger();
    QVERIFY(entry->isChecked());
    QCOMPARE(window.tabs->count(), 1);

    window.tabs->setDockMode(false);
    runDeferredDeletes();
    QVERIFY(!window.tabs->changeTab2Window(0));
    ZelTextIconTabWidget alone;
    alone.addTab(new QWidget, QStringLiteral("a"));
    alone.addTab(new QWidget, QStringLiteral("b"));
    alone.setDockMode(true);
    QVERIFY(!alone.changeTab2Window(0));
}

void tst_tabdragout::dragTearsOutAndFollows()
{
    Window window;
    QWidget *bar = window.tabs->tabBar();
    const QPoint start = window.tabCenter(1);
    UserInput::press(bar, start);
    UserInput::move(bar, start + QPoint(0, 12));
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::DragMoveCursor);
    UserInput::move(bar, start + QPoint(0, 250));
    QCOMPARE(window.order(), QStringLiteral("AC"));
    ZelDockWidgetFromTab *dock = window.tabs->getChildren().constFirst();
    const QPoint place = dock->pos();
    UserInput::move(bar, start + QPoint(60, 300));
    UserInput::move(bar, start + QPoint(90, 330));
    QVERIFY2((dock->pos() - place).manhattanLength() >= 60, "the window follows the pointer");
    UserInput::release(bar, start + QPoint(90, 330));
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(!QWidget::mouseGrabber());
}

void tst_tabdragout::escapeCancelsDrag()
{
    Window window;
    QWidget *bar = window.tabs->tabBar();
    QWidget *current = window.tabs->currentWidget();
    const QPoint start = window.tabCenter(1);
    UserInput::press(bar, start);
    UserInput::move(bar, start + QPoint(0, 12));
    UserInput::move(bar, start + QPoint(0, 250));
    UserInput::move(bar, start + QPoint(60, 300));
    QCOMPARE(window.order(), QStringLiteral("AC"));
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(window.order(), QStringLiteral("ABC"));
    QCOMPARE(window.tabs->currentWidget(), current);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(!QWidget::mouseGrabber());
    UserInput::release(bar, start + QPoint(60, 300));
    QCOMPARE(window.order(), QStringLiteral("ABC"));
}

void tst_tabdragout::dragReordersAndIsStored()
{
    Window window;
    QWidget *bar = window.tabs->tabBar();
    UserInput::drag(bar, window.tabCenter(0), window.tabCenter(2) + QPoint(8, 0));
    QCOMPARE(window.order(), QStringLiteral("BCA"));
    QVERIFY(!QGuiApplication::overrideCursor());
    QCOMPARE(ZelSettings(QStringLiteral("Library")).value(QStringLiteral("A")).toInt(), 2);
    QVERIFY(window.tabs->hasReorderedDialogs());
}

void tst_tabdragout::nearDragDoesNothing()
{
    Window window;
    QWidget *bar = window.tabs->tabBar();
    const int limit = 4 * QApplication::startDragDistance();
    UserInput::drag(bar, window.tabCenter(0),
                    QPoint(window.tabCenter(0).x(), bar->height() + limit - 3));
    QCOMPARE(window.order(), QStringLiteral("ABC"));
    // A release that never came leaves nothing behind.
    UserInput::press(bar, window.tabCenter(0));
    UserInput::move(bar, window.tabCenter(0) + QPoint(20, 0));
    UserInput::move(bar, window.tabCenter(0) + QPoint(21, 0), {}, Qt::NoButton);
    QVERIFY(!QGuiApplication::overrideCursor());
    UserInput::move(bar, window.tabCenter(0) + QPoint(0, 300));
    QCOMPARE(window.order(), QStringLiteral("ABC"));
}

void tst_tabdragout::clickFocusesPage()
{
    Window window;
    QList<QLineEdit *> fields;
    for (int i = 0; i < 3; ++i)
        fields.append(new QLineEdit(window.tabs->widget(i)));
    window.tabs->setCurrentIndex(1);
    fields[1]->show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QTest::mouseClick(window.tabs->tabBar(), Qt::LeftButton, {}, window.tabCenter(0));
    fields[0]->show();
    QTest::mouseClick(window.tabs->tabBar(), Qt::LeftButton, {}, window.tabCenter(1));
    QCOMPARE(QApplication::focusWidget(), fields[1]);
    // A drag that tears out leaves the focus.
    UserInput::drag(window.tabs->tabBar(), window.tabCenter(2),
                    window.tabCenter(2) + QPoint(0, 250));
    QCOMPARE(window.order(), QStringLiteral("AB"));
    QVERIFY(QApplication::focusWidget() != fields[0]);
}

void tst_tabdragout::menuMovesTabs()
{
    Window window;
    ZelTextIconTabBar *bar = window.tabs->decoratedTabBar();
    const auto run = [bar](int tab, const QString &text) {
        const std::unique_ptr<QMenu> menu(bar->createContextMenu(tab));
        for (QAction *action : menu->actions()) {
            if (action->text() == text) {
                const bool isOn = action->isEnabled();
                action->trigger();
                return isOn;
            }
        }
        return false;
    };
    QVERIFY(run(0, QStringLiteral("Move Tab Right")));
    QCOMPARE(window.order(), QStringLiteral("BAC"));
    QVERIFY(!run(0, QStringLiteral("Move Tab Left")));
    window.tabs->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(run(0, QStringLiteral("Move Tab Left")));
    QCOMPARE(window.order(), QStringLiteral("ABC"));
    QVERIFY(run(2, QStringLiteral("Dock Right")));
    QCOMPARE(window.dockWidgetArea(window.tabs->getChildren().constFirst()),
             Qt::RightDockWidgetArea);
    QVERIFY(run(1, QStringLiteral("Tear Out")));
    QCOMPARE(window.order(), QStringLiteral("A"));
    QVERIFY(!run(0, QStringLiteral("Tear Out")));
}

void tst_tabdragout::menuTearsOutAndPutsBack()
{
    Window window;
    ZelTextIconTabBar *bar = window.tabs->decoratedTabBar();
    QWidget *page = window.tabs->widget(2);
    std::unique_ptr<QMenu> menu(bar->createContextMenu());
    QAction *entry = entryOfPage(menu.get(), page);
    QVERIFY(entry->isChecked());
    entry->trigger();
    QCOMPARE(window.order(), QStringLiteral("AB"));
    entry->trigger();
    QCOMPARE(window.order(), QStringLiteral("ABC"));
    runDeferredDeletes();

    window.tabs->changeTab2Window(2);
    menu.reset(bar->createContextMenu());
    entry = entryOfPage(menu.get(), page);
    QVERIFY(!entry->isChecked());
    QCOMPARE(entry->text(), QStringLiteral("B"));
    QCOMPARE(menu->actions().at(2)->text(), QStringLiteral("Restore Tabs"));
    menu->actions().at(2)->trigger();
    QCOMPARE(window.order(), QStringLiteral("ABC"));
}

void tst_tabdragout::menuChoosesHeaderStyle()
{
    Window window;
    ZelTextIconTabBar *bar = window.tabs->decoratedTabBar();
    QSignalSpy updated(bar, &ZelTextIconTabBar::tabHeaderStyleUpdated);
    const std::unique_ptr<QMenu> menu(bar->createContextMenu());
    menu->actions().at(0)->trigger();
    menu->actions().at(1)->trigger();
    QCOMPARE(updated.count(), 2);
    QCOMPARE(updated.at(0).at(0).toInt(), 2);
    QCOMPARE(updated.at(1).at(0).toInt(), 1);
}

void tst_tabdragout::namesAreNumberedByMoves()
{
    ZelSettings settings(QStringLiteral("A/pageDockWdg"));
    Window window;
    window.tabs->widget(0)->setObjectName(QStringLiteral("A/page"));
    ZelDockWidgetFromTab *dock = nullptr;
    {
        const ZelDocking::RestoreScope restore;
        dock = window.tabs->changeTab2Window(0);
        dock->move(300, 310);
        QCOMPARE(dock->objectName(), QStringLiteral("ZelDWA_page_"));
        dock->show();
        dock->hide();
        QVERIFY(dock->isVisible());
    }
    dock->move(320, 330);
    const uint number = settings.value(QStringLiteral("windowSeq")).toUInt();
    QVERIFY(number > 0);
    QCOMPARE(dock->objectName(), QStringLiteral("ZelDWA_page%1").arg(number));
    dock->assignStableName();
    dock->move(340, 350);
    QCOMPARE(dock->objectName(), QStringLiteral("ZelDWA_page_"));
    QCOMPARE(settings.value(QStringLiteral("windowSeq")).toUInt(), number);
}

void tst_tabdragout::ownersMayDie_data()
{
    QTest::addColumn<QString>("dying");
    for (const char *dying : {"page", "tabs", "window", "dock"})
        QTest::newRow(dying) << QString::fromLatin1(dying);
}

void tst_tabdragout::ownersMayDie()
{
    QFETCH(QString, dying);
    auto window = std::make_unique<Window>();
    QWidget *bar = window->tabs->tabBar();
    const QPoint start = window->tabCenter(0);
    UserInput::press(bar, start);
    UserInput::move(bar, start + QPoint(0, 12));
    UserInput::move(bar, start + QPoint(0, 250));
    const QPointer<ZelDockWidgetFromTab> dock = window->tabs->getChildren().constFirst();
    const QPointer<QWidget> page = dock->page();
    if (dying == QLatin1String("page")) {
        delete page;
    } else if (dying == QLatin1String("tabs")) {
        delete window->tabs;
    } else if (dying == QLatin1String("window")) {
        window.reset();
    } else {
        delete dock;
        QCOMPARE(window->order(), QStringLiteral("BCA"));
        UserInput::move(bar, start + QPoint(0, 260));
        UserInput::release(bar, start + QPoint(0, 260));
    }
    runDeferredDeletes();
    QVERIFY(!dock);
    QCOMPARE(page.isNull(), dying != QLatin1String("dock"));
    window.reset();
    QVERIFY(!QGuiApplication::overrideCursor());
}

ZEL_TEST_MAIN(tst_tabdragout)
#include "tst_tabdragout.moc"
