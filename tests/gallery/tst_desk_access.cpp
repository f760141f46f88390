#include "TestCase.h"

#include "ControlWalk.h"
#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "PageCatalog.h"
#include "TabWalk.h"
#include "desk/DeskRibbon.h"
#include "desk/DeskStart.h"
#include "desk/DeskWindow.h"
#include "viewport/Viewport.h"

#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QAccessible>
#include <QTabBar>
#include <QToolButton>

#include <memory>

namespace {

/// Everything that assistive technology comes to below the root and that is seen.
void collectSeen(QAccessibleInterface *access, QList<QAccessibleInterface *> &found)
{
    if (access->state().invisible)
        return;
    found.append(access);
    for (int i = 0; i < access->childCount(); ++i) {
        if (QAccessibleInterface *child = access->child(i); child && child->isValid())
            collectSeen(child, found);
    }
}

QString describe(QAccessibleInterface *access)
{
    QStringList path;
    for (; access && access->isValid() && path.size() < 4; access = access->parent()) {
        const QObject *object = access->object();
        path.append(
            (object ? QLatin1String(object->metaObject()->className()) + u' ' + object->objectName()
                    : QString()) +
            u' ' + QString::number(access->role(), 16) + u' ' + access->text(QAccessible::Name));
    }
    return path.join(QLatin1String(" < "));
}

bool isPressed(QAccessible::Role role)
{
    static const QList<QAccessible::Role> roles{QAccessible::Button,        QAccessible::CheckBox,
                                                QAccessible::RadioButton,   QAccessible::ButtonMenu,
                                                QAccessible::PageTab,       QAccessible::MenuItem,
                                                QAccessible::ButtonDropDown};
    return roles.contains(role);
}

QStringList faultOf(QAccessibleInterface *access)
{
    static const QList<QAccessible::Role> named{QAccessible::PageTabList, QAccessible::ToolBar,
                                                QAccessible::TitleBar, QAccessible::Window,
                                                QAccessible::Dialog};
    const QAccessible::Role role = access->role();
    const bool hasName = !access->text(QAccessible::Name).trimmed().isEmpty();
    const bool needsName = access->state().focusable || isPressed(role) || named.contains(role);
    if (needsName && !hasName)
        return {QStringLiteral("no name: ") + describe(access)};
    if (access->state().disabled || !isPressed(role))
        return {};
    const bool acts =
        access->actionInterface() && !access->actionInterface()->actionNames().isEmpty();
    return acts ? QStringList() : QStringList{QStringLiteral("no action: ") + describe(access)};
}

bool isInPage(const QWidget *widget)
{
    while (widget && !qobject_cast<const GalleryPage *>(widget))
        widget = widget->parentWidget();
    return widget != nullptr;
}

/// The stops of a window that the Tab key does not come to from the first of them on.
QStringList notReached(QWidget *window, QWidget *start)
{
    QList<QWidget *> stops;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->window() == window && TabWalk::isStop(widget))
            stops.append(widget);
    }
    if (!start && !stops.isEmpty())
        start = stops.first();
    if (!start)
        return {QStringLiteral("no stop: ") + TabWalk::nameOf(window)};
    const QList<QWidget *> reached = TabWalk::onceAround(start);
    QStringList faults;
    if (reached.last() != start)
        faults.append(QStringLiteral("no way round: ") + TabWalk::nameOf(window));
    for (const QWidget *stop : std::as_const(stops)) {
        if (!TabWalk::holds(reached, stop))
            faults.append(QStringLiteral("not reached: ") + TabWalk::nameOf(stop));
    }
    return faults;
}

/// The stops of a tab widget that the Tab key doesn't come to on its way from the bar of the tabs
/// to the first stop outside.
QStringList notBehindBar(ZelTextIconTabWidget *tabs)
{
    QList<QWidget *> reached = TabWalk::onceAround(tabs->tabBar());
    const auto outside = std::find_if(reached.begin(), reached.end(), [tabs](QWidget *widget) {
        return !tabs->isAncestorOf(widget);
    });
    reached.erase(outside, reached.end());
    reached.append(tabs->tabBar());
    QStringList missing;
    for (const QWidget *widget : tabs->findChildren<QWidget *>()) {
        if (widget->window() == tabs->window() && TabWalk::isStop(widget) &&
            !TabWalk::holds(reached, widget))
            missing.append(TabWalk::nameOf(widget));
    }
    return missing;
}

} // namespace

/// The gallery as a docked application, for those who use no mouse or see no screen.
class DeskAccessTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everythingSeenHasANameAndButtonsAct();
    void partsOfTheDeskTellWhatTheyAre();
    void theControlsAroundThePagesDoWhatTheyOffer();
    void theTabKeyComesRound();
    void aPageIsReachedBehindItsTab();

private:
    void arrange();

    std::unique_ptr<GalleryApplication> application_;
    std::unique_ptr<DeskWindow> desk_;
    QPointer<ZelDockWidgetFromTab> tornOut_;
    QPointer<ZelDockWidget> floating_;
};

void DeskAccessTest::init()
{
    TestCase::init();
    application_ = std::make_unique<GalleryApplication>(QStringLiteral("Dark"));
    desk_ = std::make_unique<DeskWindow>(application_.get());
    desk_->setAnimated(false);
    desk_->resize(1800, 1000);
    desk_->show();
    DeskStart::restore(desk_.get());
    arrange();
}

void DeskAccessTest::cleanup()
{
    desk_.reset();
    application_.reset();
    TestCase::cleanup();
}

/// Pages on both sides, one in a window of its own, a dock that floats, and two that are stacked.
void DeskAccessTest::arrange()
{
    for (const char *page : {"messages", "tree", "sliders"})
        desk_->showPage(pageIndex(QLatin1String(page)));
    tornOut_ = desk_->library()->changeTab2Window(desk_->library()->currentIndex());
    desk_->showPage(pageIndex(QStringLiteral("buttons")));
    floating_ = desk_->dock("StudioDockWidget");
    floating_->show();
    floating_->setFloating(true);
    for (const char *name : {"LogDock", "StatisticsDock", "RenderSettingsDock", "SceneTreeDock"})
        desk_->dock(name)->show();
    desk_->tabifyDockWidget(desk_->dock("LogDock"), desk_->dock("StatisticsDock"));
    desk_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk_.get()));
    QVERIFY(tornOut_ && tornOut_->isVisible() && floating_->isVisible());
}

void DeskAccessTest::everythingSeenHasANameAndButtonsAct()
{
    QList<QAccessibleInterface *> seen;
    collectSeen(QAccessible::queryAccessibleInterface(qApp), seen);
    for (const QWidget *part :
         {static_cast<QWidget *>(tornOut_), tornOut_->page(), static_cast<QWidget *>(floating_),
          floating_->contentsWidget(), static_cast<QWidget *>(desk_->ribbon())})
        QVERIFY2(seen.contains(QAccessible::queryAccessibleInterface(const_cast<QWidget *>(part))),
                 qPrintable(TabWalk::nameOf(part)));
    QStringList faults;
    for (QAccessibleInterface *access : std::as_const(seen))
        faults += faultOf(access);
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void DeskAccessTest::partsOfTheDeskTellWhatTheyAre()
{
    const auto tells = [](QWidget *widget, QAccessible::Role role, const QString &name) {
        QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(access);
        QVERIFY2(access->role() == role && access->text(QAccessible::Name) == name,
                 qPrintable(describe(access)));
    };
    tells(desk_->ribbon(), QAccessible::ToolBar, QStringLiteral("Ribbon"));
    tells(desk_->mainToolBar(), QAccessible::ToolBar, QStringLiteral("Tool bar"));
    for (const ZelDockWidget *dock : desk_->docks()) {
        tells(const_cast<ZelDockWidget *>(dock), QAccessible::Window, dock->windowTitle());
        tells(dock->titleBarWidget(), QAccessible::TitleBar, dock->windowTitle());
    }
    tells(tornOut_, QAccessible::Window, tornOut_->windowTitle());
    for (ZelTextIconTabWidget *tabs : {desk_->library(), desk_->project()}) {
        // Qt names a tab bar by its current tab.
        tells(tabs->decoratedTabBar(), QAccessible::PageTabList,
              tabs->tabText(tabs->currentIndex()));
        QAccessibleInterface *bar = QAccessible::queryAccessibleInterface(tabs->decoratedTabBar());
        for (int i = 0; i < tabs->count(); ++i) {
            QCOMPARE(bar->child(i)->role(), QAccessible::PageTab);
            QCOMPARE(bar->child(i)->text(QAccessible::Name), tabs->tabText(i));
        }
    }
}

void DeskAccessTest::theControlsAroundThePagesDoWhatTheyOffer()
{
    QStringList faults;
    int walked = 0;
    const auto controls = ControlWalk::controlsIn(QAccessible::queryAccessibleInterface(qApp));
    for (const QPointer<QWidget> &widget : controls) {
        // Docks that others closed have taken what was in them along.
        const auto *bar = qobject_cast<const QTabBar *>(widget);
        if (!widget || !widget->isVisible() || isInPage(widget) || (bar && bar->count() == 0))
            continue;
        ++walked;
        faults += ControlWalk::faultsOf(widget);
    }
    QVERIFY(walked > 20);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void DeskAccessTest::theTabKeyComesRound()
{
    // Every part of the desk has a stop, and none of the desk's stops is left out.
    for (const QToolBar *bar : {static_cast<const QToolBar *>(desk_->ribbon()),
                                static_cast<const QToolBar *>(desk_->mainToolBar())}) {
        for (QAction *action : bar->actions()) {
            const auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action));
            QVERIFY2(!button || !button->isVisible() || !button->isEnabled() ||
                         TabWalk::isStop(button),
                     qPrintable(action->text()));
        }
    }
    QStringList faults;
    for (QWidget *window : {static_cast<QWidget *>(desk_.get()), static_cast<QWidget *>(tornOut_),
                            static_cast<QWidget *>(floating_)}) {
        window->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), window);
        faults += notReached(window, window == desk_.get() ? desk_->viewport() : nullptr);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

/// Whenever it was made, or came back.
void DeskAccessTest::aPageIsReachedBehindItsTab()
{
    ZelTextIconTabWidget *library = desk_->library();
    const auto faults = [library] {
        return notBehindBar(library).join(u'\n');
    };
    QCOMPARE(faults(), QString());
    for (const char *late : {"texts", "fields", "headers"}) {
        desk_->showPage(pageIndex(QLatin1String(late)));
        QCOMPARE(faults(), QString());
    }
    const QPointer<QWidget> page = tornOut_->page();
    tornOut_->forceRestoreInView();
    QCOMPARE(library->currentWidget(), page);
    QCOMPARE(faults(), QString());
    QCOMPARE(notReached(desk_.get(), desk_->viewport()).join(u'\n'), QString());
}

ZEL_TEST_MAIN(DeskAccessTest)
#include "tst_desk_access.moc"
