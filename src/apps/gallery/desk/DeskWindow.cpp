#include "DeskWindow.h"

#include "DeskMenus.h"
#include "DeskRibbon.h"
#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "LogPanel.h"
#include "LookControls.h"
#include "PageCatalog.h"
#include "PageGroup.h"
#include "PageGroups.h"
#include "ScenePage.h"
#include "ScenePanels.h"
#include "viewport/ViewScene.h"
#include "viewport/Viewport.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/WorkSpaceAutosave>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelDockingMode>
#include <ZelWidgets/ZelPaneWalker>
#include <ZelWidgets/ZelShortcutHandler>
#include <ZelWidgets/ZelTabKeyOrder>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QCloseEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QTabBar>

namespace {

constexpr QSize wantedSize(1600, 1000);

ZelSettings windowSettings()
{
    return ZelSettings(QStringLiteral("galleryDesk"));
}

ZelSettings interfaceSettings()
{
    return ZelSettings(QStringLiteral("ui"));
}

QString dockingKey()
{
    return QStringLiteral("EnableDocking");
}

} // namespace

DeskWindow::DeskWindow(GalleryApplication *application)
    : application_(application)
    , scene_(new ViewScene(this))
    , viewport_(new Viewport(scene_, this))
{
    setWindowTitle(tr("Widget gallery"));
    setWindowIcon(LookControls::icon(QStringLiteral("widgets")));
    setDockNestingEnabled(true);
    setCentralWidget(viewport_);
    // The side panels reach down to the bottom, the log stands between them.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    ribbon_ = new DeskRibbon(this);
    createPanels();
    createDocks();
    createToolBars();
    new DeskMenus(this, application_);
    connectScene();
    connectWorkSpaces();
    new ZelDockingMode(this);
    new ZelPaneWalker(this);
    restoreWindow();
    viewport_->setFocus();
    ZelShortcutHandler::instance()->restoreSettings();
    ZelShortcutHandler::instance()->setSystemInitialized(this);
}

DeskWindow::~DeskWindow() = default;

ZelTextIconTabWidget *DeskWindow::createTabs(const QString &name, const QString &title)
{
    auto *tabs = new ZelTextIconTabWidget(this);
    tabs->setObjectName(name);
    tabs->setAccessibleName(title);
    tabs->setDockHeaderPrefix(title + QStringLiteral(": "));
    return tabs;
}

void DeskWindow::createPanels()
{
    library_ = createTabs(QStringLiteral("LibraryWindow"), tr("Library"));
    project_ = createTabs(QStringLiteral("ProjectWindow"), tr("Project"));
    scenePage_ = new ScenePage(scene_, viewport_);
    project_->addTab(scenePage_, LookControls::icon(QStringLiteral("home")), tr("Scene"));
    placeInTabOrder(scenePage_, project_->tabBar());
    log_ = new LogPanel(this);
    log_->hideTitle();
    addGroups();
}

void DeskWindow::addGroups()
{
    for (const PageGroupEntry &entry : pageGroups()) {
        auto *group = new PageGroup(entry);
        ZelTextIconTabWidget *tabs = entry.isInProject ? project_ : library_;
        tabs->addTab(group, LookControls::icon(entry.icon), entry.title);
        placeInTabOrder(group, tabs->tabBar());
        connect(group, &PageGroup::logged, log_, &LogPanel::addSignal);
        groups_.append(group);
    }
}

ZelDockWidget *DeskWindow::addDock(const QString &name, const QString &title, QWidget *contents,
                                   Qt::DockWidgetArea area)
{
    auto *dock = new ZelDockWidget(title, name, true, this);
    dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea |
                          Qt::BottomDockWidgetArea);
    dock->setContentsWidget(contents);
    addDockWidget(area, dock);
    docks_.append(dock);
    return dock;
}

void DeskWindow::createDocks()
{
    statistics_ = new StatisticsPanel(this);
    const auto add = [this](const char *name, const QString &title, const char *icon,
                            QWidget *contents, Qt::DockWidgetArea area) {
        addDock(QLatin1String(name), title, contents, area)
            ->setProperty("ribbonIcon", QLatin1String(icon));
    };
    add("LibraryDock", tr("Library"), "book", library_, Qt::LeftDockWidgetArea);
    add("ProjectDock", tr("Project"), "widgets", project_, Qt::RightDockWidgetArea);
    add("SceneTreeDock", tr("Objects"), "list_toggle_mode", new SceneTreePanel(scene_),
        Qt::LeftDockWidgetArea);
    add("LogDock", tr("Log"), "log", log_, Qt::BottomDockWidgetArea);
    add("StatisticsDock", tr("Statistics"), "info", statistics_, Qt::BottomDockWidgetArea);
    add("RenderSettingsDock", tr("Rendering"), "sliders",
        new RenderSettingsPanel(ribbon_->renderSwitches()), Qt::RightDockWidgetArea);
    add("StudioDockWidget", tr("Studios"), "studio", new StudioPanel(scene_),
        Qt::RightDockWidgetArea);
    // They have to be in the main window by now.
    const bool enabled = docksAreEnabled();
    library_->setDockMode(enabled);
    project_->setDockMode(enabled);
}

void DeskWindow::createToolBars()
{
    addToolBar(ribbon_);
    addToolBarBreak();
    mainToolBar_ = new ZelToolBar(ZelToolBar::StyledBorder, this);
    mainToolBar_->setObjectName(QStringLiteral("MainToolBar"));
    mainToolBar_->setWindowTitle(tr("Tool bar"));
    mainToolBar_->setAccessibleName(tr("Tool bar"));
    mainToolBar_->addAction(LookControls::icon(QStringLiteral("zoom")), tr("Fit the selection"),
                            viewport_, &Viewport::fitSelected);
    mainToolBar_->addAction(LookControls::icon(QStringLiteral("undo")), tr("Reset the camera"),
                            viewport_, &Viewport::resetCamera);
    mainToolBar_->addAction(LookControls::icon(QStringLiteral("visible")), tr("Show all objects"),
                            scene_, &ViewScene::showAll);
    mainToolBar_->addSeparator();
    mainToolBar_->addAction(LookControls::icon(QStringLiteral("theme")),
                            tr("Switch to the other theme"), this,
                            [this] { LookControls::takeOtherTheme(application_); });
    mainToolBar_->addSpacer();
    auto *label = new QLabel(tr("Font size"), mainToolBar_);
    auto *box = new FontSizeBox(application_, mainToolBar_);
    label->setBuddy(box);
    mainToolBar_->addWidget(label);
    mainToolBar_->addWidget(box);
    makeButtonsReachable(mainToolBar_);
    mainToolBar_->setIconSizeMode(ZelToolBar::MediumIcons);
    addToolBar(mainToolBar_);
    ribbon_->addPanelButtons();
}

void DeskWindow::connectScene()
{
    connect(viewport_, &Viewport::said, log_, &LogPanel::addSignal);
    connect(viewport_->renderer(), &ViewportRenderer::updated, statistics_,
            &StatisticsPanel::showReport);
    connect(viewport_, &Viewport::editWanted, this, [this] {
        project_->setCurrentWidget(scenePage_);
        project_->raiseDockWidget(scenePage_);
        scenePage_->editColor();
    });
    connect(application_, &GalleryApplication::themeChanged, this, &DeskWindow::lookChanged);
    connect(application_, &GalleryApplication::fontSizeChanged, this, &DeskWindow::lookChanged);
}

void DeskWindow::connectWorkSpaces()
{
    WorkSpaceWidgetRibbon *workSpaces = ribbon_->workSpaces();
    workSpaces->setLibraryWindow(library_);
    workSpaces->setProjectWindow(project_);
    autosave_ = new WorkSpaceAutosave(library_, project_, this);
    connect(autosave_, &WorkSpaceAutosave::saved, workSpaces,
            &WorkSpaceWidgetRibbon::updateChangeMark);
    connect(workSpaces, &WorkSpaceWidgetRibbon::changedTheme, application_,
            &GalleryApplication::followTheme);
    // Queued: the button restores the workspace for the same signal.
    connect(workSpaces->menu(), &QMenu::triggered, this, &DeskWindow::followStoredSwitches,
            Qt::QueuedConnection);
}

void DeskWindow::lookChanged()
{
    viewport_->refresh();
    for (int i = 0; i < pageCatalog().size(); ++i) {
        if (GalleryPage *shown = page(i))
            shown->lookChanged();
    }
}

ZelDockWidget *DeskWindow::dock(const char *name) const
{
    for (ZelDockWidget *dock : docks_) {
        if (dock->objectName() == QLatin1String(name))
            return dock;
    }
    return nullptr;
}

PageGroup *DeskWindow::groupOf(int index) const
{
    for (PageGroup *group : groups_) {
        if (group->has(index))
            return group;
    }
    return nullptr;
}

GalleryPage *DeskWindow::page(int index) const
{
    const PageGroup *group = groupOf(index);
    return group ? group->page(index) : nullptr;
}

void DeskWindow::showPage(int index)
{
    PageGroup *group = groupOf(index);
    if (!group)
        return;
    currentPage_ = index;
    group->showPage(index);
    for (ZelTextIconTabWidget *tabs : {library_, project_}) {
        if (tabs->indexOf(group) < 0) {
            tabs->raiseDockWidget(group);
            continue;
        }
        tabs->setCurrentWidget(group);
        ZelDockWidget *dock = this->dock(tabs == library_ ? "LibraryDock" : "ProjectDock");
        dock->show();
        dock->raise();
    }
}

bool DeskWindow::docksAreEnabled() const
{
    const QVariant stored = interfaceSettings().value(dockingKey());
    return stored.typeId() != QMetaType::Bool || stored.toBool();
}

void DeskWindow::setDocksEnabled(bool on)
{
    if (!on)
        dockedState_ = saveState();
    interfaceSettings().setValue(dockingKey(), on);
    if (!on)
        WorkSpaceHandler::disableDockWidgets(this);
    followStoredSwitches();
    if (on) {
        WorkSpaceHandler::enableDockWidgets(this);
        restoreState(dockedState_);
    }
}

void DeskWindow::followStoredSwitches()
{
    const bool enabled = docksAreEnabled();
    library_->setDockMode(enabled);
    project_->setDockMode(enabled);
}

void DeskWindow::savePicture()
{
    const QString file =
        QFileDialog::getSaveFileName(this, tr("Save picture"), QString(), tr("Pictures (*.png)"));
    if (file.isEmpty())
        return;
    if (viewport_->takePicture().save(file))
        log_->addSignal(tr("Saved %1").arg(file));
    else
        qWarning() << "Can't write the picture" << file;
}

void DeskWindow::restoreWindow()
{
    resize(wantedSize.boundedTo(screen()->availableSize()));
    restoreGeometry(windowSettings().value(QStringLiteral("geometry")).toByteArray());
}

void DeskWindow::closeEvent(QCloseEvent *event)
{
    setProperty("ClosingZelmora", true);
    windowSettings().setValue(QStringLiteral("geometry"), saveGeometry());
    QMainWindow::closeEvent(event);
}
