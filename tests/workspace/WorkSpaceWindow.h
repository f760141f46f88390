#pragma once

#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelTextIconTabWidget>
#include <ZelWidgets/ZelToolBar>

#include <QList>
#include <QMainWindow>

/// A main window with everything that a workspace holds: the library at the left and the project
/// at the right, five pages each, four docks, a ribbon, a main tool bar, nested tab widgets.
class WorkSpaceWindow : public QMainWindow
{
public:
    explicit WorkSpaceWindow(bool isShown = true);

    /// The object names of the tabs in their order.
    static QStringList order(const QTabWidget *tabs);
    static QWidget *makePage(const QString &name);

    ZelTextIconTabWidget *library;
    ZelTextIconTabWidget *project;
    QList<ZelDockWidget *> docks;
    QToolBar *ribbon;
    ZelToolBar *toolBar;
    QTabWidget *subTabs;
    /// All pages, in tabs or torn out.
    QList<QWidget *> pages;

private:
    ZelTextIconTabWidget *addTabs(const QString &name, const QString &prefix);
    void addDocks();
    void addRibbon();
};
