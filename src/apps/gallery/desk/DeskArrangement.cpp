#include "DeskArrangement.h"

#include "DeskRibbon.h"
#include "DeskWindow.h"

#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QCoreApplication>
#include <QTabWidget>

#include <algorithm>

namespace {

struct Place
{
    const char *dock;
    Qt::DockWidgetArea area;
    /// Width at a side, height at the bottom; docks of one area stand below each other.
    int extent;
    int share;
};

struct Arrangement
{
    const char *id;
    const char *name;
    /// The first bundle that has it.
    int sinceMinor;
    QList<Place> places;
    const char *libraryTab;
    const char *projectTab;
    const char *sceneTab;
    const char *tornOut;
    QStringList hiddenButtons;
    ZelToolBar::IconSizeMode iconSize;
    bool hasToolBar;
};

const QList<Arrangement> &arrangements()
{
    static const QList<Arrangement> all{
        {"defWorkSpace1",
         QT_TRANSLATE_NOOP("DeskArrangement", "Standard"),
         0,
         {{"LibraryDock", Qt::LeftDockWidgetArea, 380, 620},
          {"SceneTreeDock", Qt::LeftDockWidgetArea, 380, 220},
          {"ProjectDock", Qt::RightDockWidgetArea, 360, 840},
          {"LogDock", Qt::BottomDockWidgetArea, 170, 560},
          {"StatisticsDock", Qt::BottomDockWidgetArea, 170, 260}},
         "ColorPages",
         "ScenePage",
         "Object",
         "",
         {},
         ZelToolBar::MediumIcons,
         true},
        {"defWorkSpace2",
         QT_TRANSLATE_NOOP("DeskArrangement", "Lighting"),
         0,
         {{"SceneTreeDock", Qt::LeftDockWidgetArea, 240, 400},
          {"StudioDockWidget", Qt::LeftDockWidgetArea, 240, 400},
          {"ProjectDock", Qt::RightDockWidgetArea, 360, 560},
          {"RenderSettingsDock", Qt::RightDockWidgetArea, 360, 200}},
         "ColorPages",
         "ScenePage",
         "Light",
         "",
         {QStringLiteral("LogDock")},
         ZelToolBar::SmallIcons,
         true},
        {"defWorkSpace3",
         QT_TRANSLATE_NOOP("DeskArrangement", "Widgets"),
         0,
         {{"LibraryDock", Qt::LeftDockWidgetArea, 640, 840},
          {"ProjectDock", Qt::RightDockWidgetArea, 420, 840},
          {"LogDock", Qt::BottomDockWidgetArea, 200, 400}},
         "ControlPages",
         "DialogPages",
         "Object",
         "KeyPages",
         {QStringLiteral("Studios"), QStringLiteral("StudiosTggl"), QStringLiteral("StudiosStep")},
         ZelToolBar::SmallIcons,
         true},
        {"defWorkSpace4",
         QT_TRANSLATE_NOOP("DeskArrangement", "Presentation"),
         1,
         {},
         "LookPages",
         "ScenePage",
         "Camera",
         "",
         {QStringLiteral("Script"), QStringLiteral("LogDock"), QStringLiteral("StatisticsDock"),
          QStringLiteral("RenderSettingsDock"), QStringLiteral("GPU"), QStringLiteral("Denoise"),
          QStringLiteral("HDPI")},
         ZelToolBar::LargeIcons,
         false},
    };
    return all;
}

const Arrangement *find(const QString &id)
{
    for (const Arrangement &arrangement : arrangements()) {
        if (id == QLatin1String(arrangement.id))
            return &arrangement;
    }
    return nullptr;
}

QWidget *pageOf(const ZelTextIconTabWidget *tabs, const char *name)
{
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->widget(i)->objectName() == QLatin1String(name))
            return tabs->widget(i);
    }
    return nullptr;
}

void select(ZelTextIconTabWidget *tabs, const char *name)
{
    if (QWidget *page = pageOf(tabs, name))
        tabs->setCurrentWidget(page);
}

/// Docks that the arrangement doesn't show have a place as well, or a restore would leave them as
/// they are.
void placeHidden(DeskWindow *window, const QList<Place> &places)
{
    for (ZelDockWidget *dock : window->docks()) {
        dock->setFloating(false);
        window->removeDockWidget(dock);
    }
    for (ZelDockWidget *dock : window->docks()) {
        const bool isShown = std::any_of(places.begin(), places.end(), [dock](const Place &place) {
            return dock->objectName() == QLatin1String(place.dock);
        });
        if (!isShown) {
            window->addDockWidget(Qt::RightDockWidgetArea, dock);
            dock->hide();
        }
    }
}

void placeDocks(DeskWindow *window, const QList<Place> &places)
{
    placeHidden(window, places);
    for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
        QList<QDockWidget *> docks;
        QList<int> extents;
        for (const Place &place : places) {
            const bool atBottom = place.area == Qt::BottomDockWidgetArea;
            ZelDockWidget *dock = window->dock(place.dock);
            if (direction == Qt::Horizontal) {
                // Those of the bottom stand side by side.
                window->addDockWidget(place.area, dock, atBottom ? Qt::Horizontal : Qt::Vertical);
                dock->show();
            }
            docks.append(dock);
            extents.append(atBottom == (direction == Qt::Vertical) ? place.extent : place.share);
        }
        window->resizeDocks(docks, extents, direction);
    }
}

void tearOut(DeskWindow *window, const char *name)
{
    for (ZelTextIconTabWidget *tabs : {window->library(), window->project()}) {
        QWidget *page = pageOf(tabs, name);
        ZelDockWidgetFromTab *dock = page ? tabs->changeTab2Window(tabs->indexOf(page)) : nullptr;
        if (!dock)
            continue;
        const QRect view = window->geometry();
        dock->setGeometry(view.center().x() - 260, view.top() + 180, 620, 560);
    }
}

void showButtons(DeskRibbon *ribbon, const QStringList &hidden)
{
    for (QAction *action : ribbon->actions()) {
        if (action->objectName().startsWith(QLatin1String("Ribbon")))
            action->setVisible(!hidden.contains(action->objectName().mid(6)));
    }
}

} // namespace

QString DeskArrangement::standardId()
{
    return QLatin1String(arrangements().first().id);
}

QStringList DeskArrangement::ids(int minorVersion)
{
    QStringList result;
    for (const Arrangement &arrangement : arrangements()) {
        if (arrangement.sinceMinor <= minorVersion)
            result.append(QLatin1String(arrangement.id));
    }
    return result;
}

QString DeskArrangement::nameOf(const QString &id)
{
    const Arrangement *arrangement = find(id);
    return arrangement ? QCoreApplication::translate("DeskArrangement", arrangement->name)
                       : QString();
}

void DeskArrangement::apply(DeskWindow *window, const QString &id, int minorVersion)
{
    const Arrangement *arrangement = find(id);
    if (!arrangement)
        return;
    window->library()->restoreDocked2Tabs();
    window->project()->restoreDocked2Tabs();
    QList<Place> places = arrangement->places;
    // The first version had no panel of statistics.
    if (minorVersion == 0)
        places.removeIf(
            [](const Place &place) { return qstrcmp(place.dock, "StatisticsDock") == 0; });
    placeDocks(window, places);
    select(window->library(), arrangement->libraryTab);
    select(window->project(), arrangement->projectTab);
    auto *sceneTabs = window->findChild<QTabWidget *>(QStringLiteral("ScenePageSubTab"));
    for (int i = 0; i < sceneTabs->count(); ++i) {
        if (sceneTabs->tabText(i) == QLatin1String(arrangement->sceneTab))
            sceneTabs->setCurrentIndex(i);
    }
    tearOut(window, arrangement->tornOut);
    showButtons(window->ribbon(), arrangement->hiddenButtons);
    window->mainToolBar()->setIconSizeMode(arrangement->iconSize);
    window->mainToolBar()->setVisible(arrangement->hasToolBar);
}
