#pragma once

#include "workspace/WorkSpaceGeometry.h"
#include "workspace/WorkSpaceRecord.h"

#include <QCoreApplication>
#include <QPointer>

class QDockWidget;
class QMainWindow;
class QTabWidget;
class QToolBar;
class QWidget;
class ZelDockWidgetFromTab;
class ZelTextIconTabWidget;

/// Reads the live interface into a record, and applies a record to it. Every widget may die in the
/// middle of it, as events are processed: what is left is restored then.
class WorkSpaceInformation
{
    Q_DECLARE_TR_FUNCTIONS(WorkSpaceInformation)

public:
    /// The tab widgets have to be of the kind ZelTextIconTabWidget.
    WorkSpaceInformation(QWidget *libraryWindow, QWidget *projectWindow);

    const WorkSpaceRecord &record() const { return record_; }
    QByteArray data() const { return record_.write(); }
    void getDataFromCurrentState();
    /// True if the main window took its layout.
    bool restoreState(const QByteArray &data);

private:
    using Tabs = QPointer<ZelTextIconTabWidget>;

    bool hasWindows() const;
    QToolBar *ribbon() const;
    QList<ZelDockWidgetFromTab *> tornOutDocks() const;
    QList<QTabWidget *> nestedTabWidgets() const;
    QList<QTabWidget *> nestedTabWidgets(const QList<ZelDockWidgetFromTab *> &tornOut) const;

    void finishLayout();
    void captureTornOut(const QList<ZelDockWidgetFromTab *> &docks);
    void captureTabs();
    void captureWindow();
    void captureRibbon();
    void captureNestedTabs(const QList<QTabWidget *> &nested);
    void captureToolBar();
    void captureDocks();

    void hideHelpers();
    bool read(const QByteArray &data);
    void putPagesBack();
    void restoreTabs();
    void orderTabs(ZelTextIconTabWidget *tabs, const QStringList &order);
    void tearOutPages(ZelTextIconTabWidget *tabs);
    void place(ZelDockWidgetFromTab *dock, int tornOut);
    bool restoreLayout();
    void showLooseDocks();
    void applyTargets();
    void restoreRibbon();
    void restoreNestedTabs();
    void restoreToolBar();
    void refreshRibbon();
    void settle();
    void restoreDocking();

    QDockWidget *dockOf(const WorkSpaceGeometry::Target &target) const;
    void checkStudio(const char *point, const char *function, int line) const;

    Tabs library_;
    Tabs project_;
    QPointer<QMainWindow> window_;
    WorkSpaceRecord record_;
    QList<WorkSpaceGeometry::Target> targets_;
    /// Windows of pages that are to be seen.
    QList<QPointer<ZelDockWidgetFromTab>> shown_;
    bool isDebugging_ = false;
    bool expectsStudioHidden_ = true;
};
