#include "docks/ZelDockMenu.h"
#include "docks/ZelDockPreview.h"

#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelDockWidgetTitle>
#include <ZelWidgets/ZelDockingMode>
#include <ZelWidgets/ZelPaneWalker>
#include <ZelWidgets/ZelShortcutHandler>
#include <ZelWidgets/ZelTextIconTabWidget>

#include <QAccessible>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QTabBar>

namespace {

/// Docks "tree" at the left and "log" at the right, the pages "A" and "B" and a field "view" in the
/// middle; all have a field with their name in it.
class Window : public QMainWindow
{
public:
    Window()
    {
        auto *central = new QWidget;
        auto *row = new QHBoxLayout(central);
        tabs = new ZelTextIconTabWidget;
        row->addWidget(tabs);
        row->addWidget(field(QStringLiteral("view")));
        setCentralWidget(central);
        setDockOptions(AllowTabbedDocks | AllowNestedDocks);
        for (const QString &name : {QStringLiteral("A"), QStringLiteral("B")}) {
            auto *page = new QWidget;
            page->setObjectName(QStringLiteral("page") + name);
            (new QHBoxLayout(page))->addWidget(field(name));
            tabs->addTab(page, name);
        }
        tabs->setDockMode(true);
        tree = addDock(QStringLiteral("tree"), Qt::LeftDockWidgetArea);
        log = addDock(QStringLiteral("log"), Qt::RightDockWidgetArea);
        mode = new ZelDockingMode(this);
        setGeometry(100, 100, 900, 600);
        show();
        activateWindow();
        QCoreApplication::processEvents();
    }

    static QLineEdit *field(const QString &name)
    {
        auto *edit = new QLineEdit;
        edit->setObjectName(name);
        return edit;
    }

    ZelDockWidget *addDock(const QString &name, Qt::DockWidgetArea area)
    {
        auto *dock = new ZelDockWidget(name, name, true, this);
        dock->setContentsWidget(field(name));
        addDockWidget(area, dock);
        dock->show();
        return dock;
    }

    QWidget *find(const QString &name) const { return findChild<QLineEdit *>(name); }

    /// The names in each area from top to bottom, those that share a place in brackets, then what
    /// floats and the tabs.
    QString arrangement() const
    {
        QMap<int, QString> left;
        QMap<int, QString> right;
        QString floating;
        for (auto *dock : findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            const QString name = dock->windowTitle();
            if (dock->isFloating())
                floating += name;
            else if (rect().intersects(dock->geometry()))
                (dockWidgetArea(dock) == Qt::LeftDockWidgetArea ? left : right)[dock->y()] =
                    tabifiedDockWidgets(dock).isEmpty() ? name : QStringLiteral("(%1)").arg(name);
        }
        QString pages;
        for (int i = 0; i < tabs->count(); ++i)
            pages += tabs->tabText(i);
        return left.values().join(u' ') + u'|' + floating + u'|' + right.values().join(u' ') +
               u'|' + pages;
    }

    ZelTextIconTabWidget *tabs;
    ZelDockWidget *tree;
    ZelDockWidget *log;
    ZelDockingMode *mode;
};

void press(QWidget *widget, const QList<int> &keys)
{
    for (const int key : keys)
        QTest::keyClick(widget, Qt::Key(key & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
}

QString focusName()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

} // namespace

class tst_dockkeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
        ZelShortcutHandler::prepareInstance();
    }
    void panelGoesWhereKeysSay_data();
    void panelGoesWhereKeysSay();
    void placesAreSpoken();
    void dockBehindOthersFloatsInSight();
    void windowIsMovedAndSized();
    void modeEndsByItself_data();
    void modeEndsByItself();
    void panesAreWalked();
    void clickOnAStackFocusesTheDockInFront();
    void menusOpenByKey();
    void menuSaysWhatCannotBeDone();
    void titleIsAccessible();
};

void tst_dockkeys::panelGoesWhereKeysSay_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("arrangement");
    const int left = Qt::Key_Left;
    const int right = Qt::Key_Right;
    const int up = Qt::Key_Up;
    const int down = Qt::Key_Down;
    const int enter = Qt::Key_Return;
    QTest::newRow("stays") << "tree" << QList<int>{enter} << "tree||log|AB";
    QTest::newRow("escapes") << "tree" << QList<int>{right, int(Qt::Key_Escape)} << "tree||log|AB";
    QTest::newRow("floats") << "tree" << QList<int>{right, enter} << "|tree|log|AB";
    QTest::newRow("above") << "tree" << QList<int>{right, right, enter} << "||tree log|AB";
    QTest::newRow("as a tab") << "tree" << QList<int>{right, right, down, enter} << "||(tree)|AB";
    QTest::newRow("below") << "tree" << QList<int>{right, right, down, down, down, enter}
                           << "||log tree|AB";
    QTest::newRow("ends of the rows")
        << "log" << QList<int>{left, left, left, up, enter} << "log tree|||AB";
    QTest::newRow("page floats") << "A" << QList<int>{up, enter} << "tree|A|log|B";
    QTest::newRow("page docks") << "A" << QList<int>{left, down, down, enter} << "tree A||log|B";
    QTest::newRow("page stays") << "A" << QList<int>{enter} << "tree||log|AB";
}

void tst_dockkeys::panelGoesWhereKeysSay()
{
    QFETCH(QString, start);
    QFETCH(QList<int>, keys);
    QFETCH(QString, arrangement);
    Window window;
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    window.find(start)->setFocus();
    QSignalSpy finished(window.mode, &ZelDockingMode::finished);
    press(&window, {int(Qt::CTRL) | int(Qt::Key_M)});
    QVERIFY(window.mode->isActive());
    // Letters don't get through.
    press(window.find(start), {int(Qt::Key_X)});
    QCOMPARE(static_cast<QLineEdit *>(window.find(start))->text(), QString());
    press(&window, keys);
    QVERIFY(!window.mode->isActive());
    QCOMPARE(finished.count(), 1);
    QTRY_COMPARE(window.arrangement(), arrangement);
    QTRY_COMPARE(focusName(), start);

    // And back, where it came from a tab.
    const auto children = window.tabs->getChildren();
    if (!children.isEmpty()) {
        window.mode->start();
        press(&window, {int(Qt::Key_Right), int(Qt::Key_Down), int(Qt::Key_Return)});
        if (!children.constFirst()->isFloating())
            return;
        QTRY_COMPARE(window.arrangement(), QStringLiteral("tree||log|BA"));
        QCOMPARE(focusName(), start);
    }
}

void tst_dockkeys::placesAreSpoken()
{
    Window window;
    window.find(QStringLiteral("tree"))->setFocus();
    QSignalSpy told(window.mode, &ZelDockingMode::messageChanged);
    window.mode->start();
    press(&window, {int(Qt::Key_Right), int(Qt::Key_Right), int(Qt::Key_Down)});
    const QPointer<ZelDockPreview> preview(window.findChild<ZelDockPreview *>());
    QVERIFY(preview && preview->isVisible());
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(preview);
    QCOMPARE(spoken->role(), QAccessible::AlertMessage);
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("Right side, as a tab with log"));
    press(&window, {int(Qt::Key_Escape)});
    QTRY_VERIFY(!preview);
    QCOMPARE(told.count(), 4);
    const QString first = told[0][0].toString();
    QVERIFY2(first.startsWith(QLatin1String("tree")) && first.endsWith(QLatin1String("Left side")),
             qPrintable(first));
    QCOMPARE(told[2][0].toString(), QStringLiteral("Right side, above log"));
    QVERIFY(window.mode->message().isEmpty());
}

void tst_dockkeys::dockBehindOthersFloatsInSight()
{
    Window window;
    // Out of sight is off all screens from here.
    window.move(60, 60);
    window.tabifyDockWidget(window.log, window.tree);
    window.log->raise();
    QTRY_VERIFY(!window.rect().intersects(window.tree->geometry()));
    const QRect place(window.log->mapToGlobal(QPoint()), window.log->size());
    Q_EMIT window.tree->zelTitleWidget()->toggleFloating();
    QVERIFY(window.tree->isFloating());
    QCOMPARE(window.tree->geometry(), place);

    // Where it floated before it floats again.
    const QRect chosen(300, 250, 200, 200);
    window.tree->setGeometry(chosen);
    window.tree->setFloating(false);
    window.tabifyDockWidget(window.log, window.tree);
    window.log->raise();
    QTRY_VERIFY(!window.rect().intersects(window.tree->geometry()));
    Q_EMIT window.tree->zelTitleWidget()->toggleFloating();
    QCOMPARE(window.tree->geometry(), chosen);
}

void tst_dockkeys::windowIsMovedAndSized()
{
    Window window;
    window.tree->setFloating(true);
    window.tree->setGeometry(300, 250, 200, 200);
    QCoreApplication::processEvents();
    window.tree->activateWindow();
    window.find(QStringLiteral("tree"))->setFocus();
    QTRY_COMPARE(focusName(), QStringLiteral("tree"));
    const int ctrl = Qt::CTRL;
    const int shift = Qt::SHIFT;
    window.mode->start();
    press(window.tree, {ctrl | int(Qt::Key_Right), shift | int(Qt::Key_Down)});
    QCOMPARE(window.tree->geometry(), QRect(310, 250, 200, 210));
    press(window.tree, {int(Qt::Key_Escape)});
    QCOMPARE(window.tree->geometry(), QRect(300, 250, 200, 200));
    window.mode->start();
    press(window.tree, {ctrl | int(Qt::Key_Up), int(Qt::Key_Return)});
    QCOMPARE(window.tree->geometry(), QRect(300, 240, 200, 200));
    QVERIFY(window.tree->isFloating());
    window.mode->start();
    for (int i = 0; i < 30; ++i)
        press(window.tree, {ctrl | int(Qt::Key_Up)});
    QCOMPARE(window.tree->y(), 0);
    press(window.tree, {int(Qt::Key_Return)});
}

void tst_dockkeys::modeEndsByItself_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"click", "panel dies", "neighbour dies", "window dies", "switch"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void tst_dockkeys::modeEndsByItself()
{
    QFETCH(QString, what);
    auto window = std::make_unique<Window>();
    window->find(QStringLiteral("tree"))->setFocus();
    if (what == QLatin1String("switch")) {
        ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("EnableDocking"), false);
        window->mode->start();
        QVERIFY(!window->mode->isActive());
        return;
    }
    window->mode->start();
    press(window.get(), {int(Qt::Key_Right), int(Qt::Key_Right)});
    QVERIFY(window->mode->isActive());
    if (what == QLatin1String("window dies")) {
        window.reset();
        QLineEdit other;
        press(&other, {int(Qt::Key_A)});
        QCOMPARE(other.text(), QStringLiteral("a"));
        return;
    }
    if (what == QLatin1String("click"))
        QTest::mouseClick(window->find(QStringLiteral("view")), Qt::LeftButton);
    else if (what == QLatin1String("panel dies"))
        delete window->tree;
    else
        delete window->log;
    press(window.get(), {int(Qt::Key_Return)});
    QVERIFY(!window->mode->isActive());
    const QLatin1String expected(what == QLatin1String("click")        ? "tree||log|AB"
                                 : what == QLatin1String("panel dies") ? "||log|AB"
                                                                       : "||tree|AB");
    QCOMPARE(window->arrangement(), QString(expected));
}

void tst_dockkeys::panesAreWalked()
{
    Window window;
    const auto *walker = new ZelPaneWalker(&window);
    window.log->setFloating(true);
    window.log->move(400, 300);
    window.activateWindow();
    window.find(QStringLiteral("tree"))->setFocus();
    QTRY_COMPARE(focusName(), QStringLiteral("tree"));
    const auto walk = [](int key, int steps) {
        QStringList names;
        for (int i = 0; i < steps; ++i) {
            press(QApplication::activeWindow(), {key});
            // Another window becomes active by an event.
            QCoreApplication::processEvents();
            names.append(focusName());
        }
        return names.join(u' ');
    };
    QCOMPARE(walk(Qt::Key_F6, 4), QStringLiteral("A view log tree"));
    QCOMPARE(walk(int(Qt::SHIFT) | int(Qt::Key_F6), 3), QStringLiteral("log view A"));
    // A pane remembers; one that can't be seen is left out.
    auto *other = Window::field(QStringLiteral("other"));
    window.tabs->currentWidget()->layout()->addWidget(other);
    other->show();
    other->setFocus();
    window.log->hide();
    QCOMPARE(walk(Qt::Key_F6, 3), QStringLiteral("view tree other"));
    QCOMPARE(walker->panes().constFirst(), window.tree);
    window.setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    QCOMPARE(walker->panes().constLast(), window.tree);
}

void tst_dockkeys::clickOnAStackFocusesTheDockInFront()
{
    // One stack above the other, so that each bar is between two docks.
    Window window;
    window.setAnimated(false);
    const auto stack = [&window](ZelDockWidget *first, const QString &name) {
        window.tabifyDockWidget(first, window.addDock(name, Qt::RightDockWidgetArea));
    };
    window.splitDockWidget(
        window.log, window.addDock(QStringLiteral("low"), Qt::RightDockWidgetArea), Qt::Vertical);
    stack(window.log, QStringLiteral("second"));
    stack(window.findChild<ZelDockWidget *>(QStringLiteral("low")), QStringLiteral("lower"));
    const auto bars = [&window] {
        QList<QTabBar *> shown =
            window.findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
        shown.removeIf([](const QTabBar *bar) { return !bar->isVisible() || bar->count() != 2; });
        return shown;
    };
    QTRY_COMPARE(bars().size(), 2);
    QSet<QString> clicked;
    for (QTabBar *bar : bars()) {
        // The last tab is in front by now.
        for (const int tab : {1, 0, 0}) {
            window.find(QStringLiteral("view"))->setFocus();
            const QString name = bar->tabText(tab);
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
            QTRY_COMPARE(focusName(), name);
            QVERIFY(window.rect().intersects(window.findChild<ZelDockWidget *>(name)->geometry()));
            clicked.insert(name);
        }
        window.find(QStringLiteral("view"))->setFocus();
        QTest::mouseClick(bar, Qt::RightButton, {}, bar->tabRect(0).center());
        QCoreApplication::processEvents();
        QCOMPARE(focusName(), QStringLiteral("view"));
    }
    QCOMPARE(clicked.size(), 4);
}

void tst_dockkeys::menusOpenByKey()
{
    Window window;
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    const auto menuTexts = [] {
        QStringList texts;
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *action : menu->actions())
                texts.append(action->text());
            menu->hide();
            delete menu;
        }
        return texts;
    };
    const int key = int(Qt::SHIFT) | int(Qt::Key_F10);
    window.tabs->tabBar()->setFocus();
    press(window.tabs->tabBar(), {key});
    QVERIFY(menuTexts().contains(QStringLiteral("Tear Out")));
    QWidget *button = window.tree->zelTitleWidget()->findChild<QWidget *>();
    button->setFocus();
    press(button, {key});
    QVERIFY(menuTexts().contains(QStringLiteral("Dock Right")));
    window.find(QStringLiteral("log"))->setFocus();
    window.mode->start();
    press(&window, {key});
    QVERIFY(menuTexts().contains(QStringLiteral("Dock Left")));
    QVERIFY(!window.mode->isActive());
}

void tst_dockkeys::menuSaysWhatCannotBeDone()
{
    Window window;
    window.tree->setFloating(true);
    const std::unique_ptr<QMenu> menu(ZelDockMenu::create(window.tree, false));
    int told = 0;
    for (QAction *action : menu->actions()) {
        if (!action->text().contains(QLatin1String("This Desktop Places Windows Itself")))
            continue;
        ++told;
        QVERIFY(!action->isEnabled());
    }
    QCOMPARE(told, 2); // two screens
    const QPoint place = window.tree->pos();
    menu->actions().at(1)->trigger();
    QVERIFY(!window.tree->isFloating());
    QVERIFY(window.tree->pos() != place);
}

void tst_dockkeys::titleIsAccessible()
{
    Window window;
    window.tree->setGroupName(QStringLiteral("Scene"));
    QAccessibleInterface *title =
        QAccessible::queryAccessibleInterface(window.tree->zelTitleWidget());
    QCOMPARE(title->role(), QAccessible::TitleBar);
    QCOMPARE(title->text(QAccessible::Name), QStringLiteral("Scene tree"));
    const QString docked = title->text(QAccessible::Description);
    window.tree->setFloating(true);
    QVERIFY(title->text(QAccessible::Description) != docked);
    title->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    const QPointer<QMenu> menu(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
    QVERIFY(menu);
    delete menu;
}

ZEL_TEST_MAIN(tst_dockkeys)
#include "tst_dockkeys.moc"
