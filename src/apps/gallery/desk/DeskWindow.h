#pragma once

#include <QHash>
#include <QMainWindow>

class DeskRibbon;
class GalleryApplication;
class GalleryPage;
class LogPanel;
class PageGroup;
class ScenePage;
class StatisticsPanel;
class Viewport;
class ViewScene;
class WorkSpaceAutosave;
class ZelDockWidget;
class ZelTextIconTabWidget;
class ZelToolBar;

/// The gallery as an application: a view of a scene with the library window at the left and the
/// project window at the right, whose tabs hold all pages, docks around them, a ribbon and a tool
/// bar. Workspaces store how all of it is arranged.
class DeskWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DeskWindow(GalleryApplication *application);
    ~DeskWindow() override;

    ZelTextIconTabWidget *library() const { return library_; }
    ZelTextIconTabWidget *project() const { return project_; }
    Viewport *viewport() const { return viewport_; }
    ViewScene *scene() const { return scene_; }
    DeskRibbon *ribbon() const { return ribbon_; }
    ZelToolBar *mainToolBar() const { return mainToolBar_; }
    LogPanel *log() const { return log_; }
    /// Off at first.
    WorkSpaceAutosave *autosave() const { return autosave_; }
    /// By its object name.
    ZelDockWidget *dock(const char *name) const;
    QList<ZelDockWidget *> docks() const { return docks_; }

    /// Brings a page of the catalog to the front, wherever its tab is.
    void showPage(int index);
    /// The page that was shown last by showPage(); 0 at first.
    int currentPage() const { return currentPage_; }
    GalleryPage *page(int index) const;

    bool docksAreEnabled() const;
    /// The user's switch. Without docking all docks float; they go back with it.
    void setDocksEnabled(bool on);
    /// Does what the stored switch says, after a workspace has set it.
    void followStoredSwitches();
    void savePicture();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createPanels();
    ZelTextIconTabWidget *createTabs(const QString &name, const QString &title);
    void addGroups();
    void createDocks();
    ZelDockWidget *addDock(const QString &name, const QString &title, QWidget *contents,
                           Qt::DockWidgetArea area);
    void createToolBars();
    void connectScene();
    void connectWorkSpaces();
    void restoreWindow();
    void lookChanged();
    PageGroup *groupOf(int index) const;

    GalleryApplication *application_;
    ViewScene *scene_;
    Viewport *viewport_;
    LogPanel *log_ = nullptr;
    ZelTextIconTabWidget *library_ = nullptr;
    ZelTextIconTabWidget *project_ = nullptr;
    ScenePage *scenePage_ = nullptr;
    StatisticsPanel *statistics_ = nullptr;
    DeskRibbon *ribbon_ = nullptr;
    ZelToolBar *mainToolBar_ = nullptr;
    WorkSpaceAutosave *autosave_ = nullptr;
    QList<PageGroup *> groups_;
    QList<ZelDockWidget *> docks_;
    QByteArray dockedState_;
    int currentPage_ = 0;
};
