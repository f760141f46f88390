#include "WorkSpaceInformation.h"

#include "ZelWindowPlacement.h"
#include "docks/ZelDockHold.h"
#include "docks/ZelDockPlaces.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDocking.h"
#include "docks/ZelDocksOf.h"
#include "docks/ZelTextIconTabWidget.h"
#include "workspace/WorkSpaceLayoutState.h"

#include <ZelCore/ZelSettings>

#include <QDebug>
#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// Reads the switch, and writes it so that it can be found in the settings.
bool readSwitch(const QString &key, bool fallback)
{
    ZelSettings settings(QStringLiteral("WorkSpaces"));
    const QVariant stored = settings.value(key);
    if (stored.metaType() == QMetaType::fromType<bool>())
        return stored.toBool();
    settings.setValue(key, fallback);
    return fallback;
}

/// A window that was never shown knows its screen by its place only.
qint16 screenIndex(QWidget *widget)
{
    QScreen *screen =
        widget->isWindow() ? QGuiApplication::screenAt(widget->geometry().center()) : nullptr;
    return qint16(QGuiApplication::screens().indexOf(screen ? screen : widgetScreen(widget)));
}

QStringList pageNames(const QTabWidget *tabs)
{
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i)
        names.append(tabs->widget(i)->objectName());
    return names;
}

/// Looks at widgets only, of which there are fewer than children.
void addTabWidgets(const QWidget *widget, QList<QTabWidget *> &found)
{
    for (QObject *child : widget->children()) {
        if (!child->isWidgetType())
            continue;
        if (auto *tabs = qobject_cast<QTabWidget *>(child))
            found.append(tabs);
        addTabWidgets(static_cast<QWidget *>(child), found);
    }
}

/// The order of children changes whenever one of them becomes a window.
template <typename Dock, typename Name>
QList<Dock *> sortedByName(const QList<Dock *> &docks, Name name)
{
    std::vector<std::pair<QString, Dock *>> named;
    named.reserve(size_t(docks.size()));
    for (Dock *dock : docks)
        named.emplace_back(name(dock), dock);
    std::stable_sort(named.begin(), named.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<Dock *> sorted;
    sorted.reserve(docks.size());
    for (const auto &[key, dock] : named)
        sorted.append(dock);
    return sorted;
}

} // namespace

WorkSpaceInformation::WorkSpaceInformation(QWidget *libraryWindow, QWidget *projectWindow)
    : library_(qobject_cast<ZelTextIconTabWidget *>(libraryWindow))
    , project_(qobject_cast<ZelTextIconTabWidget *>(projectWindow))
    , window_(ZelDocking::mainWindowOf(library_))
    , isDebugging_(readSwitch(QStringLiteral("debugEnabledOnWS"), false))
    , expectsStudioHidden_(readSwitch(QStringLiteral("debugExpectStudioHidden"), true))
{
    readSwitch(QStringLiteral("debugExpectToolbarVisible"), true);
}

bool WorkSpaceInformation::hasWindows() const
{
    return library_ && project_ && window_;
}

QList<ZelDockWidgetFromTab *> WorkSpaceInformation::tornOutDocks() const
{
    QList<ZelDockWidgetFromTab *> docks = library_->getChildren();
    if (project_ != library_)
        docks += project_->getChildren();
    return sortedByName(docks,
                        [](ZelDockWidget *dock) { return dock->contentsWidget()->objectName(); });
}

QList<QTabWidget *> WorkSpaceInformation::nestedTabWidgets() const
{
    QList<QTabWidget *> all;
    addTabWidgets(library_, all);
    if (project_ != library_)
        addTabWidgets(project_, all);
    for (const ZelDockWidgetFromTab *dock : tornOutDocks()) {
        if (auto *page = qobject_cast<QTabWidget *>(dock->page()))
            all.append(page);
        if (dock->page())
            addTabWidgets(dock->page(), all);
    }
    return all;
}

void WorkSpaceInformation::getDataFromCurrentState()
{
    if (!hasWindows())
        return;
    finishLayout();
    const char *const function = "WorkSpaceInformation::getDataFromCurrentState";
    checkStudio("at store 1", function, __LINE__);
    captureTornOut();
    captureTabs();
    captureWindow();
    captureRibbon();
    captureNestedTabs();
    captureToolBar();
    captureDocks();
    checkStudio("at store 2", function, __LINE__);
}

/// What was changed just before is taken down as it will be, not on its way there.
void WorkSpaceInformation::finishLayout()
{
    ZelDockHold::end(window_);
    if (window_->isVisible())
        window_->layout()->activate();
}

void WorkSpaceInformation::captureTornOut()
{
    ZelDockPlaces places(window_);
    for (ZelDockWidgetFromTab *dock : tornOutDocks()) {
        dock->assignStableName();
        record_.tornOutNames.append(dock->contentsWidget()->objectName());
        record_.tornOutRects.append(dock->isHidden() ? WorkSpaceRecord::hiddenRect()
                                                     : places.of(dock));
        record_.tornOutScreens.append(screenIndex(dock));
    }
}

void WorkSpaceInformation::captureTabs()
{
    record_.libraryTabOrder = pageNames(library_);
    record_.projectTabOrder = pageNames(project_);
    record_.libraryTabIndex = library_->currentIndex();
    record_.projectTabIndex = project_->currentIndex();
}

void WorkSpaceInformation::captureWindow()
{
    record_.mainWindowState = WorkSpaceLayoutState::withoutNameless(window_->saveState(0));
    if (const QScreen *screen = widgetScreen(window_)) {
        record_.screenGeometry = screen->geometry();
        record_.screenAvailable = screen->availableGeometry();
    }
    record_.devicePixelRatio = window_->devicePixelRatioF();
    record_.mainWindowGeometry = window_->geometry();
    record_.maximized = window_->isMaximized();
}

void WorkSpaceInformation::captureNestedTabs()
{
    for (const QTabWidget *tabs : nestedTabWidgets()) {
        const QString name = tabs->objectName();
        if (name.isEmpty())
            continue;
        record_.tabWidgetNames.append(name);
        record_.tabWidgetIndices.append(tabs->currentIndex());
        if (name == QLatin1String("ScenePageSubTab"))
            record_.sceneSubTabText = tabs->tabText(tabs->currentIndex());
    }
}

void WorkSpaceInformation::captureDocks()
{
    record_.enableDocking = ZelDocking::isEnabled();
    const QList<ZelDockWidget *> docks =
        sortedByName(zelDocksOf<ZelDockWidget>(window_),
                     [](const ZelDockWidget *dock) { return dock->objectName(); });
    ZelDockPlaces places(window_);
    for (ZelDockWidget *dock : docks) {
        if (!dock->isVisible() || dock->objectName().isEmpty())
            continue;
        record_.dockNames.append(dock->objectName());
        record_.dockRects.append(places.of(dock));
        record_.dockScreens.append(screenIndex(dock));
    }
    for (const QScreen *screen : QGuiApplication::screens())
        record_.screens.append(screen->geometry());
}

/// An aid to find what shows a panel that no workspace was to show.
void WorkSpaceInformation::checkStudio(const char *point, const char *function, int line) const
{
    if (!isDebugging_ || !expectsStudioHidden_ || window_->property("ClosingZelmora").toBool())
        return;
    const auto *studio = window_->findChild<QDockWidget *>(QStringLiteral("StudioDockWidget"));
    if (studio && studio->isVisible())
        qDebug() << "Studio was expected to be hidden:" << point << "- Called from " << function
                 << "(line)" << line;
}
