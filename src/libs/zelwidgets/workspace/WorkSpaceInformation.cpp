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
#include <array>
#include <utility>
#include <vector>

namespace {

/// Reads the switch, and writes it so that it can be found in the settings.
bool readSwitch(ZelSettings &settings, const QString &key, bool fallback)
{
    const QVariant stored = settings.value(key);
    if (stored.metaType() == QMetaType::fromType<bool>())
        return stored.toBool();
    settings.setValue(key, fallback);
    return fallback;
}

/// The index of the screen of a widget; what stands in the main window is where that is.
class ScreenFinder
{
public:
    explicit ScreenFinder(QWidget *window)
        : window_(window)
        , screens_(QGuiApplication::screens())
        , windowIndex_(indexOf(widgetScreen(window)))
    {}

    qint16 of(QWidget *widget) const
    {
        if (!widget->isWindow())
            return widget->window() == window_ ? windowIndex_ : indexOf(widgetScreen(widget));
        // A window that was never shown knows its screen by its place only.
        QScreen *screen = QGuiApplication::screenAt(widget->geometry().center());
        return indexOf(screen ? screen : widgetScreen(widget));
    }

private:
    qint16 indexOf(QScreen *screen) const { return qint16(screens_.indexOf(screen)); }

    QWidget *window_;
    QList<QScreen *> screens_;
    qint16 windowIndex_;
};

QStringList pageNames(const QTabWidget *tabs)
{
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i)
        names.append(tabs->widget(i)->objectName());
    return names;
}

/// Finds the tab widgets below others. Each class is asked once whether it is one: most widgets are
/// of few classes.
class TabWidgetFinder
{
public:
    void look(const QWidget *widget)
    {
        for (QObject *child : widget->children()) {
            if (!child->isWidgetType())
                continue;
            if (isTabWidget(child->metaObject()))
                found.append(static_cast<QTabWidget *>(child));
            if (!child->children().isEmpty())
                look(static_cast<QWidget *>(child));
        }
    }

    QList<QTabWidget *> found;

private:
    struct Answer
    {
        const QMetaObject *asked = nullptr;
        bool isTabWidget = false;
    };

    bool isTabWidget(const QMetaObject *asked)
    {
        Answer &answer = answers_[quintptr(asked) / alignof(QMetaObject) % answers_.size()];
        if (answer.asked != asked)
            answer = {asked, asked->inherits(&QTabWidget::staticMetaObject)};
        return answer.isTabWidget;
    }

    std::array<Answer, 64> answers_;
};

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
{
    ZelSettings settings(QStringLiteral("WorkSpaces"));
    isDebugging_ = readSwitch(settings, QStringLiteral("debugEnabledOnWS"), false);
    expectsStudioHidden_ = readSwitch(settings, QStringLiteral("debugExpectStudioHidden"), true);
    readSwitch(settings, QStringLiteral("debugExpectToolbarVisible"), true);
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
    if (docks.size() < 2)
        return docks;
    return sortedByName(docks,
                        [](ZelDockWidget *dock) { return dock->contentsWidget()->objectName(); });
}

QList<QTabWidget *> WorkSpaceInformation::nestedTabWidgets() const
{
    return nestedTabWidgets(tornOutDocks());
}

QList<QTabWidget *>
WorkSpaceInformation::nestedTabWidgets(const QList<ZelDockWidgetFromTab *> &tornOut) const
{
    TabWidgetFinder finder;
    finder.look(library_);
    if (project_ != library_)
        finder.look(project_);
    for (const ZelDockWidgetFromTab *dock : tornOut) {
        if (auto *page = qobject_cast<QTabWidget *>(dock->page()))
            finder.found.append(page);
        if (dock->page())
            finder.look(dock->page());
    }
    return finder.found;
}

void WorkSpaceInformation::getDataFromCurrentState()
{
    if (!hasWindows())
        return;
    finishLayout();
    const char *const function = "WorkSpaceInformation::getDataFromCurrentState";
    checkStudio("at store 1", function, __LINE__);
    const QList<ZelDockWidgetFromTab *> tornOut = tornOutDocks();
    captureTornOut(tornOut);
    captureTabs();
    captureWindow();
    captureRibbon();
    captureNestedTabs(nestedTabWidgets(tornOut));
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

void WorkSpaceInformation::captureTornOut(const QList<ZelDockWidgetFromTab *> &docks)
{
    if (docks.isEmpty())
        return;
    ZelDockPlaces places(window_);
    const ScreenFinder screens(window_);
    for (ZelDockWidgetFromTab *dock : docks) {
        dock->assignStableName();
        record_.tornOutNames.append(dock->contentsWidget()->objectName());
        record_.tornOutRects.append(dock->isHidden() ? WorkSpaceRecord::hiddenRect()
                                                     : places.of(dock));
        record_.tornOutScreens.append(screens.of(dock));
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

void WorkSpaceInformation::captureNestedTabs(const QList<QTabWidget *> &nested)
{
    for (const QTabWidget *tabs : nested) {
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
    QList<ZelDockWidget *> docks = zelDocksOf<ZelDockWidget>(window_);
    docks.removeIf([](const ZelDockWidget *dock) {
        return !dock->isVisible() || dock->objectName().isEmpty();
    });
    docks = sortedByName(docks, [](const ZelDockWidget *dock) { return dock->objectName(); });
    record_.dockNames.reserve(docks.size());
    record_.dockRects.reserve(docks.size());
    record_.dockScreens.reserve(docks.size());
    ZelDockPlaces places(window_);
    const ScreenFinder screens(window_);
    for (ZelDockWidget *dock : std::as_const(docks)) {
        record_.dockNames.append(dock->objectName());
        record_.dockRects.append(places.of(dock));
        record_.dockScreens.append(screens.of(dock));
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
