#include "TestCase.h"

#include "UserInput.h"

#include <ZelWidgets/ZelButtonAction>
#include <ZelWidgets/ZelMenu>
#include <ZelWidgets/ZelSeparator>
#include <ZelWidgets/ZelToolBar>

#include <QMainWindow>
#include <QMenuBar>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

class MenusTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aNonHideEntryLeavesTheMenuOpen_data();
    void aNonHideEntryLeavesTheMenuOpen();
    void whatEndsAMenuHidesItAfterOneLoopAndItOpensAgain_data();
    void whatEndsAMenuHidesItAfterOneLoopAndItOpensAgain();
    void aKeptCloseDoesNotStopTheNext();
    void aNonHideEntryOfASubmenuKeepsTheWholeChain();
    void aChainClosesByItsLastEntry();
    void aMenuOfAMenuBarStaysAndCloses();
    void theDeathOfAMenuThatHidesLeavesOthersAlone();
    void aMenuThatIsDeletedOnCloseGoes();
    void aMenuThatIsShownAgainBeforeItHidStays();
    void tooltipsFollowTheMouse();
    void theIconSizeReachesAllButtons();
    void theNearestIconSizeWins();
    void aSeparatorTurnsWithItsToolBar();
    void aButtonActionWorksInMenusAndToolBars();

private:
    void open(QMenu *menu);
    void click(QMenu *menu, QAction *entry);

    std::unique_ptr<QWidget> window_;
    std::unique_ptr<ZelMenu> menu_;
    QAction *stay_ = nullptr;
    QAction *go_ = nullptr;
};

void MenusTest::init()
{
    TestCase::init();
    window_ = std::make_unique<QWidget>();
    window_->setGeometry(300, 300, 300, 200);
    window_->show();
    menu_ = std::make_unique<ZelMenu>(QStringLiteral("Menu"));
    stay_ = menu_->addNotHideAction(QStringLiteral("&Stay"));
    go_ = menu_->addAction(QStringLiteral("Go"));
}

void MenusTest::cleanup()
{
    menu_.reset();
    window_.reset();
    TestCase::cleanup();
}

void MenusTest::open(QMenu *menu)
{
    menu->popup(QPoint(10, 10));
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    QCoreApplication::processEvents();
}

void MenusTest::click(QMenu *menu, QAction *entry)
{
    const QPoint place = menu->actionGeometry(entry).center();
    QWindow *window = menu->windowHandle();
    QTest::mouseMove(window, place - QPoint(2, 2));
    QTest::mouseMove(window, place);
    QTest::mouseClick(window, Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
}

void MenusTest::aNonHideEntryLeavesTheMenuOpen_data()
{
    using Choose = std::function<void()>;
    QTest::addColumn<Choose>("choose");
    QTest::newRow("click") << Choose([this] { click(menu_.get(), stay_); });
    QTest::newRow("enter") << Choose([this] {
        menu_->setActiveAction(stay_);
        QTest::keyClick(menu_.get(), Qt::Key_Return);
    });
    QTest::newRow("press elsewhere, release here") << Choose([this] {
        const QPoint place = menu_->actionGeometry(stay_).center();
        UserInput::move(menu_.get(), place - QPoint(20, 0));
        UserInput::move(menu_.get(), place);
        UserInput::release(menu_.get(), place);
    });
    QTest::newRow("space") << Choose([this] {
        menu_->setActiveAction(stay_);
        QTest::keyClick(menu_.get(), Qt::Key_Space);
    });
    QTest::newRow("mnemonic") << Choose([this] { QTest::keyClick(menu_.get(), Qt::Key_S); });
}

void MenusTest::aNonHideEntryLeavesTheMenuOpen()
{
    QFETCH(std::function<void()>, choose);
    QSignalSpy triggered(menu_.get(), &QMenu::triggered);
    QSignalSpy hidden(menu_.get(), &QMenu::aboutToHide);
    open(menu_.get());
    for (int times = 1; times <= 3; ++times) {
        choose();
        QCoreApplication::processEvents();
        QVERIFY(menu_->isVisible());
        QCOMPARE(triggered.count(), times);
    }
    QCOMPARE(hidden.count(), 0);
    click(menu_.get(), go_);
    QTRY_VERIFY(!menu_->isVisible());
    QCOMPARE(triggered.last().first().value<QAction *>(), go_);
    QCOMPARE(hidden.count(), 1);
}

void MenusTest::whatEndsAMenuHidesItAfterOneLoopAndItOpensAgain_data()
{
    using End = std::function<void()>;
    QTest::addColumn<End>("end");
    QTest::newRow("hide") << End([this] { menu_->hide(); });
    QTest::newRow("close") << End([this] { menu_->close(); });
    QTest::newRow("escape") << End([this] { QTest::keyClick(menu_.get(), Qt::Key_Escape); });
    QTest::newRow("click outside") << End([this] {
        QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, QPoint(150, 100));
    });
    QTest::newRow("native close") << End([this] { menu_->windowHandle()->close(); });
}

void MenusTest::whatEndsAMenuHidesItAfterOneLoopAndItOpensAgain()
{
    QFETCH(std::function<void()>, end);
    const bool isDeferred = qstrcmp(QTest::currentDataTag(), "click outside") != 0;
    for (int times = 0; times < 3; ++times) {
        open(menu_.get());
        end();
        // A click of the test goes through the event loop itself.
        QCOMPARE(menu_->isVisible(), isDeferred);
        QCoreApplication::processEvents();
        QVERIFY(!menu_->isVisible());
        QVERIFY(!QApplication::activePopupWidget());
    }
    open(menu_.get());
    click(menu_.get(), stay_);
    QVERIFY(menu_->isVisible());
}

void MenusTest::aKeptCloseDoesNotStopTheNext()
{
    open(menu_.get());
    // An entry that is triggered by other ways than the menu's own closes nothing.
    stay_->trigger();
    QCoreApplication::processEvents();
    QTest::keyClick(menu_.get(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    QVERIFY(!menu_->isVisible());

    open(menu_.get());
    menu_->hide();
    menu_->slotSetPreventCloseNow();
    QCoreApplication::processEvents();
    QVERIFY(menu_->isVisible());
    menu_->hide();
    menu_->hide();
    QVERIFY(!menu_->isVisible());
}

void MenusTest::aNonHideEntryOfASubmenuKeepsTheWholeChain()
{
    auto *sub = new ZelMenu(QStringLiteral("Sub"), menu_.get());
    QAction *inner = sub->addNotHideAction(QStringLiteral("&Inner"));
    menu_->addMenu(sub);
    open(menu_.get());
    menu_->setActiveAction(sub->menuAction());
    QTRY_VERIFY(sub->isVisible());
    for (int times = 0; times < 2; ++times) {
        click(sub, inner);
        QVERIFY(sub->isVisible());
        QVERIFY(menu_->isVisible());
        QCOMPARE(sub->activeAction(), inner);
    }
    QSignalSpy triggered(inner, &QAction::triggered);
    QTest::keyClick(sub, Qt::Key_I);
    QCoreApplication::processEvents();
    QCOMPARE(triggered.count(), 1);
    QVERIFY(sub->isVisible() && menu_->isVisible());
    QTest::keyClick(sub, Qt::Key_Escape);
    QTRY_VERIFY(!sub->isVisible());
    QVERIFY(menu_->isVisible());
}

void MenusTest::aChainClosesByItsLastEntry()
{
    auto *sub = new ZelMenu(QStringLiteral("Sub"), menu_.get());
    auto *subSub = new ZelMenu(QStringLiteral("Sub of sub"), sub);
    QAction *last = subSub->addAction(QStringLiteral("Last"));
    menu_->addMenu(sub);
    sub->addMenu(subSub);
    QSignalSpy triggered(last, &QAction::triggered);
    for (int times = 1; times <= 2; ++times) {
        open(menu_.get());
        menu_->setActiveAction(sub->menuAction());
        QTRY_VERIFY(sub->isVisible());
        sub->setActiveAction(subSub->menuAction());
        QTRY_VERIFY(subSub->isVisible());
        click(subSub, last);
        QTRY_VERIFY(!menu_->isVisible() && !sub->isVisible() && !subSub->isVisible());
        QCOMPARE(triggered.count(), times);
    }
    // No mark of a deferred hide is left behind.
    open(menu_.get());
    menu_->hide();
    QVERIFY(menu_->isVisible());
}

void MenusTest::aMenuOfAMenuBarStaysAndCloses()
{
    QMainWindow window;
    window.menuBar()->addMenu(menu_.get());
    window.setGeometry(100, 100, 300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QPoint title = window.menuBar()->actionGeometry(menu_->menuAction()).center();
    QTest::mouseClick(window.menuBar(), Qt::LeftButton, {}, title);
    QTRY_VERIFY(menu_->isVisible());
    click(menu_.get(), stay_);
    QVERIFY(menu_->isVisible());
    QTest::keyClick(menu_.get(), Qt::Key_S);
    QCoreApplication::processEvents();
    QVERIFY(menu_->isVisible());
    click(menu_.get(), go_);
    QTRY_VERIFY(!menu_->isVisible());
    QTest::mouseClick(window.menuBar(), Qt::LeftButton, {}, title);
    QTRY_VERIFY(menu_->isVisible());
}

void MenusTest::theDeathOfAMenuThatHidesLeavesOthersAlone()
{
    auto dying = std::make_unique<ZelMenu>();
    dying->addAction(QStringLiteral("Entry"));
    open(dying.get());
    dying->hide();
    dying.reset();

    open(menu_.get());
    menu_->hide();
    QVERIFY(menu_->isVisible());
    QCoreApplication::processEvents();
    QVERIFY(!menu_->isVisible());
}

void MenusTest::aMenuThatIsDeletedOnCloseGoes()
{
    const QPointer<ZelMenu> menu = new ZelMenu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *stay = menu->addNotHideAction(QStringLiteral("Stay"));
    open(menu);
    click(menu, stay);
    QVERIFY(menu);
    QTest::keyClick(menu, Qt::Key_Escape);
    QTRY_VERIFY(!menu);
}

void MenusTest::aMenuThatIsShownAgainBeforeItHidStays()
{
    open(menu_.get());
    menu_->hide();
    menu_->popup(QPoint(20, 20));
    QCoreApplication::processEvents();
    QVERIFY(menu_->isVisible());
}

void MenusTest::tooltipsFollowTheMouse()
{
    QSignalSpy shown(menu_.get(), &ZelMenu::showTooltip);
    QSignalSpy hidden(menu_.get(), &ZelMenu::hideTooltip);
    open(menu_.get());
    const QPoint place = menu_->actionGeometry(stay_).center();
    const auto moveTo = [this](QPoint point) {
        QTest::mouseMove(menu_->windowHandle(), point);
    };
    moveTo(place);
    moveTo(place + QPoint(3, 1));
    moveTo(place + QPoint(6, 0));
    QCOMPARE(shown.count(), 1);
    QCOMPARE(shown.last().first().value<QAction *>(), stay_);
    moveTo(menu_->actionGeometry(go_).center());
    QCOMPARE(shown.count(), 2);
    QCOMPARE(hidden.count(), 0);

    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(menu_.get(), &leave);
    QCOMPARE(hidden.count(), 1);
    // The tip was taken away: it comes back with the mouse.
    moveTo(menu_->actionGeometry(go_).center() + QPoint(4, 0));
    QCOMPARE(shown.count(), 3);
    menu_->hide();
    QTRY_COMPARE(hidden.count(), 2);
}

void MenusTest::theIconSizeReachesAllButtons()
{
    ZelToolBar bar(ZelToolBar::NoBorder);
    QAction *action = bar.addAction(QStringLiteral("Action"));
    auto *panel = new QWidget;
    auto *deep = new QToolButton(panel);
    bar.addSpacer();
    bar.addWidget(panel);
    QCOMPARE(int(bar.currentIconSizeMode()), 0);
    const QList<QPair<int, int>> modes{{1, 16}, {2, 24}, {3, 32}};
    for (const auto &[mode, extent] : modes) {
        bar.setIconSizeMode(ZelToolBar::IconSizeMode(mode));
        const QSize size(extent, extent);
        QCOMPARE(bar.iconSize(), size);
        QCOMPARE(deep->iconSize(), size);
        QCOMPARE(qobject_cast<QToolButton *>(bar.widgetForAction(action))->iconSize(), size);
        QVERIFY(bar.updatesEnabled());
    }
    messages().expect(QtWarningMsg, QStringLiteral("Unknown icon size mode 4"));
    bar.setIconSizeMode(ZelToolBar::IconSizeMode(4));
    QCOMPARE(bar.currentIconSizeMode(), ZelToolBar::LargeIcons);
    QVERIFY(!ZelToolBar::isKnownMode(ZelToolBar::IconSizeMode(0)));
    QCOMPARE(bar.widgetForAction(action)->focusPolicy(), Qt::TabFocus);
}

void MenusTest::theNearestIconSizeWins()
{
    const QList<QPair<int, int>> rows{{-1, 1}, {0, 1},  {16, 1}, {20, 1},      {21, 2},
                                      {24, 2}, {28, 2}, {29, 3}, {INT_MAX, 3}, {INT_MIN, 1}};
    for (const auto &[height, mode] : rows) {
        ZelToolBar bar(ZelToolBar::StyledBorder);
        bar.setBestIconSizeModeFromSize(QSize(5, height));
        QVERIFY2(int(bar.currentIconSizeMode()) == mode, qPrintable(QString::number(height)));
    }
}

void MenusTest::aSeparatorTurnsWithItsToolBar()
{
    ZelToolBar bar(ZelToolBar::NoBorder);
    auto *action = new ZelSeparatorAction(&bar);
    bar.addAction(action);
    auto *line = qobject_cast<ZelSeparator *>(bar.widgetForAction(action));
    QVERIFY(line);
    QCOMPARE(line->objectName(), QStringLiteral("VerticalSeparator"));
    bar.setOrientation(Qt::Vertical);
    QCOMPARE(line->objectName(), QStringLiteral("HorizontalSeparator"));

    // Keys step over it in a menu.
    menu_->insertAction(go_, action);
    open(menu_.get());
    menu_->setActiveAction(stay_);
    QTest::keyClick(menu_.get(), Qt::Key_Down);
    QCOMPARE(menu_->activeAction(), go_);
}

void MenusTest::aButtonActionWorksInMenusAndToolBars()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    ZelButtonAction action(picture, QStringLiteral("Paint"), QStringLiteral("Paints it red"),
                           nullptr);
    QSignalSpy triggered(&action, &QAction::triggered);
    ZelToolBar bar(ZelToolBar::NoBorder);
    bar.addAction(&action);
    menu_->addAction(&action);
    auto *inBar = qobject_cast<QToolButton *>(bar.widgetForAction(&action));
    auto *inMenu = menu_->findChild<QToolButton *>();
    QVERIFY(inBar && inMenu);
    bar.setIconSizeMode(ZelToolBar::LargeIcons);
    QCOMPARE(inBar->iconSize(), QSize(32, 32));
    QCOMPARE(inBar->toolTip(), QStringLiteral("Paints it red"));
    inBar->click();
    QCOMPARE(triggered.count(), 1);

    open(menu_.get());
    inMenu->click();
    QCOMPARE(triggered.count(), 2);
    QTRY_VERIFY(!menu_->isVisible());

    menu_->setNotHideAction(&action);
    open(menu_.get());
    inMenu->click();
    QCoreApplication::processEvents();
    QVERIFY(menu_->isVisible());
    action.setEnabled(false);
    QVERIFY(!inBar->isEnabled());
    action.setText(QStringLiteral("Blue"));
    QCOMPARE(inMenu->accessibleName(), QStringLiteral("Blue"));
}

ZEL_TEST_MAIN(MenusTest)
#include "tst_menus.moc"
