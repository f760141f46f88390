#include "TestCase.h"

#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "PageCatalog.h"
#include "desk/DeskArrangement.h"
#include "desk/DeskRibbon.h"
#include "desk/DeskStart.h"
#include "desk/DeskWindow.h"
#include "desk/PageGroups.h"
#include "viewport/ViewScene.h"
#include "viewport/Viewport.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/WorkSpaceAutosave>
#include <ZelWidgets/WorkSpaceDefaults>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QMenu>
#include <QTabWidget>
#include <QTreeWidget>

#include <memory>

namespace {

QStringList shownDocks(const DeskWindow &desk)
{
    QStringList names;
    for (const ZelDockWidget *dock : desk.docks()) {
        if (!dock->isHidden())
            names.append(dock->objectName());
    }
    names.sort();
    return names;
}

QStringList hiddenButtons(const DeskWindow &desk)
{
    QStringList names;
    for (const QAction *action : desk.ribbon()->actions()) {
        if (!action->isVisible() && !action->isSeparator())
            names.append(action->objectName());
    }
    names.sort();
    return names;
}

/// What a user sees of an arrangement.
QStringList lookOf(const DeskWindow &desk)
{
    const auto *sceneTabs = desk.findChild<QTabWidget *>(QStringLiteral("ScenePageSubTab"));
    return shownDocks(desk) + hiddenButtons(desk) +
           QStringList{desk.library()->currentWidget()->objectName(),
                       desk.project()->currentWidget()->objectName(),
                       sceneTabs->tabText(sceneTabs->currentIndex()),
                       QString::number(desk.library()->count() + desk.project()->count()),
                       QString::number(desk.mainToolBar()->currentIconSizeMode()),
                       QString::number(desk.mainToolBar()->isHidden())};
}

void settle()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

} // namespace

/// The gallery as a docked application.
class DeskTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyPageIsInOneGroupAndMadeWhenItIsShown();
    void theFactoryWorkSpacesAreTheArrangements();
    void theButtonRestoresWorkSpacesAndThemes();
    void theStartRestoresWhatWasLeft();
    void aStartAfterACrashLeavesItOut();
    void dockingIsSwitchedOffAndOn();
    void theRibbonDoesWhatItSays();
    void theTreeShowsAndTakesWhatIsSelected();
    void tornOutPagesComeAlongAndGoWithTheWindow();

private:
    void open();
    bool restore(const QByteArray &data);
    static QByteArray capture(const DeskWindow &desk);

    std::unique_ptr<GalleryApplication> application_;
    std::unique_ptr<DeskWindow> desk_;
};

void DeskTest::init()
{
    TestCase::init();
    application_ = std::make_unique<GalleryApplication>(QStringLiteral("Dark"));
    open();
}

void DeskTest::cleanup()
{
    desk_.reset();
    application_.reset();
    TestCase::cleanup();
}

void DeskTest::open()
{
    desk_.reset();
    desk_ = std::make_unique<DeskWindow>(application_.get());
    desk_->setAnimated(false);
    desk_->show();
    settle();
}

bool DeskTest::restore(const QByteArray &data)
{
    const bool restored =
        WorkSpaceHandler::restoreWorkSpace(data, desk_->library(), desk_->project(), false);
    settle();
    return restored;
}

QByteArray DeskTest::capture(const DeskWindow &desk)
{
    return WorkSpaceHandler::getWorkSpaceData(desk.library(), desk.project());
}

void DeskTest::everyPageIsInOneGroupAndMadeWhenItIsShown()
{
    QStringList grouped;
    for (const PageGroupEntry &group : pageGroups())
        grouped += group.pages;
    QStringList pages;
    for (const PageEntry &page : pageCatalog())
        pages.append(page.id);
    grouped.sort();
    pages.sort();
    QCOMPARE(grouped, pages);

    QCOMPARE(desk_->findChildren<GalleryPage *>().size(), 0);
    for (const char *name : {"sliders", "messages"}) {
        const int index = pageIndex(QLatin1String(name));
        QVERIFY(!desk_->page(index));
        desk_->showPage(index);
        QVERIFY(desk_->page(index) && desk_->page(index)->isVisible());
    }
    QCOMPARE(desk_->findChildren<GalleryPage *>().size(), 2);
}

void DeskTest::theFactoryWorkSpacesAreTheArrangements()
{
    QStringList ids;
    for (const DefaultWorkSpaceInfo &workSpace : WorkSpaceHandler::getDefaultWorkSpaces()) {
        ids.append(workSpace.id);
        QCOMPARE(workSpace.name, DeskArrangement::nameOf(workSpace.id));
        DeskArrangement::apply(desk_.get(), workSpace.id, DeskArrangement::latestMinorVersion);
        settle();
        const QStringList arranged = lookOf(*desk_);
        DeskArrangement::apply(desk_.get(), QStringLiteral("defWorkSpace4"), 1);
        QVERIFY(restore(workSpace.data));
        QCOMPARE(lookOf(*desk_), arranged);
        for (QAction *action : desk_->ribbon()->actions()) {
            if (action->isVisible() && action->isEnabled())
                QVERIFY2(desk_->ribbon()->widgetForAction(action)->isEnabled(),
                         qPrintable(action->text()));
        }
    }
    QCOMPARE(ids, DeskArrangement::ids(DeskArrangement::latestMinorVersion));

    // Users of the first version get the second one's.
    QFile first(QStringLiteral(":/res/workspaces_bundled_defaults/zelmora1.0.json"));
    QVERIFY(first.open(QIODevice::ReadOnly));
    const QJsonObject bundle = QJsonDocument::fromJson(first.readAll()).object();
    QCOMPARE(bundle.keys(), DeskArrangement::ids(0));
    WorkSpaceDefaults defaults;
    for (const QString &id : bundle.keys()) {
        const QByteArray data =
            QByteArray::fromBase64(bundle.value(id)[QLatin1String("data")].toString().toLatin1());
        QVERIFY(defaults.isWorkSpaceDataEqualToOneOfPreviousDefaults(id, data));
        QVERIFY(restore(data));
    }
}

void DeskTest::theButtonRestoresWorkSpacesAndThemes()
{
    QMenu *menu = desk_->ribbon()->workSpaces()->menu();
    const auto choose = [menu](const QString &data) {
        Q_EMIT menu->aboutToShow();
        for (QAction *action : menu->actions()) {
            if (action->data().toString() == data)
                return action->trigger();
        }
        QFAIL("no such entry");
    };
    QWidget *button = desk_->ribbon()->workSpaces();
    desk_->activateWindow();
    button->setFocus();
    QTRY_VERIFY(button->hasFocus());
    choose(QStringLiteral("defWorkSpace2"));
    QVERIFY2(button->hasFocus(), "another one would take the next key");
    QCOMPARE(desk_->ribbon()->workSpaces()->currentWorkSpace(), QStringLiteral("defWorkSpace2"));
    QVERIFY(!desk_->dock("StudioDockWidget")->isHidden());
    QVERIFY(desk_->dock("LibraryDock")->isHidden());
    const QImage dark = desk_->grab().toImage();
    choose(QStringLiteral("Light"));
    QCOMPARE(application_->theme(), QStringLiteral("Light"));
    QVERIFY(desk_->grab().toImage() != dark);
}

void DeskTest::theStartRestoresWhatWasLeft()
{
    DeskStart::restore(desk_.get());
    QVERIFY(!desk_->dock("LibraryDock")->isHidden());
    QVERIFY(!WorkSpaceHandler::mayHaveStartupRestoreIssue());
    // The first factory workspace is what a new user begins with.
    QVERIFY(!desk_->ribbon()->workSpaces()->isWorkSpaceChanged());

    desk_->dock("LibraryDock")->hide();
    desk_->dock("StudioDockWidget")->show();
    desk_->autosave()->setDelay(0);
    QSignalSpy saved(desk_->autosave(), &WorkSpaceAutosave::saved);
    desk_->autosave()->schedule();
    QTRY_VERIFY(!saved.isEmpty());
    QVERIFY(desk_->ribbon()->workSpaces()->isWorkSpaceChanged());
    const QStringList left = lookOf(*desk_);
    open();
    DeskStart::restore(desk_.get());
    settle();
    QCOMPARE(lookOf(*desk_), left);
}

void DeskTest::aStartAfterACrashLeavesItOut()
{
    ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("DoingStartupRestore"), true);
    ZelSettings(QStringLiteral("WorkSpaces"))
        .setValue(QStringLiteral("LastUsedWorkspace"), QStringLiteral("defWorkSpace4"));
    open();
    messages().expect(QtWarningMsg,
                      QStringLiteral("The last start ended while it restored its workspace, which "
                                     "is left out now"));
    DeskStart::restore(desk_.get());
    QVERIFY(!desk_->dock("LibraryDock")->isHidden());
    QVERIFY(!WorkSpaceHandler::mayHaveStartupRestoreIssue());
}

void DeskTest::dockingIsSwitchedOffAndOn()
{
    DeskStart::restore(desk_.get());
    const QStringList before = lookOf(*desk_);
    auto *entry = desk_->findChild<QAction *>(QStringLiteral("EnableDocking"));
    QVERIFY(entry && entry->isChecked());
    entry->trigger();
    for (const ZelDockWidget *dock : desk_->docks())
        QVERIFY2(dock->isFloating(), qPrintable(dock->objectName()));
    QVERIFY(!desk_->library()->changeTab2Window(0));
    QCOMPARE(lookOf(*desk_), before);
    entry->trigger();
    settle();
    for (const ZelDockWidget *dock : desk_->docks())
        QVERIFY2(!dock->isFloating(), qPrintable(dock->objectName()));
    QCOMPARE(lookOf(*desk_), before);
    QVERIFY(desk_->library()->changeTab2Window(0));
}

void DeskTest::theRibbonDoesWhatItSays()
{
    DeskStart::restore(desk_.get());
    const auto press = [this](const char *id) {
        QAction *action = desk_->ribbon()->button(QLatin1String(id));
        desk_->ribbon()->widgetForAction(action)->setFocus();
        action->trigger();
        return action;
    };
    const ViewScene *scene = desk_->scene();
    const int studio = scene->currentStudio();
    press("StudiosStep");
    QVERIFY(scene->currentStudio() != studio);
    press("StudiosTggl");
    QVERIFY(!scene->studiosAreOn());
    QVERIFY(!desk_->ribbon()->button(QStringLiteral("StudiosStep"))->isEnabled());
    press("Studios");
    QVERIFY(!desk_->dock("StudioDockWidget")->isHidden());
    QVERIFY(press("LogDock")->isChecked() == !desk_->dock("LogDock")->isHidden());
    press("ToolBoxBtn");
    QVERIFY(desk_->mainToolBar()->isHidden());
    press("HDPI");
    QVERIFY(!desk_->viewport()->usesDevicePixels());
    press("Denoise");
    QSignalSpy pictures(desk_->viewport()->renderer(), &ViewportRenderer::updated);
    desk_->viewport()->refresh();
    QTRY_VERIFY(desk_->viewport()->renderer()->isSettled());
    QVERIFY(!pictures.isEmpty());
    QCOMPARE(pictures.last().first().value<ViewportRenderer::Report>().quality,
             ViewportRenderer::Quality::Full);
}

void DeskTest::theTreeShowsAndTakesWhatIsSelected()
{
    auto *tree = desk_->findChild<QTreeWidget *>(QStringLiteral("SceneTree"));
    QVERIFY(tree);
    const QList<int> wanted{1, 3};
    desk_->scene()->select(wanted);
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        QCOMPARE(tree->topLevelItem(i)->isSelected(), wanted.contains(i));
    QCOMPARE(tree->currentItem(), tree->topLevelItem(1));
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(desk_->scene()->selection(), QList<int>{2});
    QTest::keyClick(tree, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(desk_->scene()->selection(), (QList<int>{2, 3}));
    QTest::keyClick(tree, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(desk_->scene()->selection(), (QList<int>{2, 3, 4}));
}

void DeskTest::tornOutPagesComeAlongAndGoWithTheWindow()
{
    DeskStart::restore(desk_.get());
    const int index = pageIndex(QStringLiteral("tree"));
    desk_->showPage(index);
    ZelTextIconTabWidget *library = desk_->library();
    const QPointer<ZelDockWidgetFromTab> window =
        library->changeTab2Window(library->currentIndex());
    QVERIFY(window);
    QVERIFY(window->windowTitle().contains(library->dockHeaderPrefix()));
    const QPointer<GalleryPage> page = desk_->page(index);
    QVERIFY(page && window->isAncestorOf(page));
    application_->setTheme(QStringLiteral("Light"));
    const QByteArray data = capture(*desk_);
    library->restoreDocked2Tabs();
    QTRY_VERIFY(!window);
    QVERIFY(desk_->isAncestorOf(page));
    QVERIFY(restore(data));
    QCOMPARE(library->getChildren().size(), 1);
    desk_.reset();
    QVERIFY(!page);
}

ZEL_TEST_MAIN(DeskTest)
#include "tst_desk.moc"
