#pragma once

#include <ZelWidgets/ZelDockWidget>

#include <QIcon>
#include <QPointer>

class QMainWindow;
class ZelTextIconTabWidget;

/// The window of a page that was torn out of a tab widget. It floats from the first moment on, may
/// be docked at the left and at the right, and puts its page back among the tabs when it goes.
///
/// Without the tab widget, the page or the main window it closes by itself.
class ZELWIDGETS_EXPORT ZelDockWidgetFromTab : public ZelDockWidget
{
    Q_OBJECT

public:
    /// Takes over the page, which must be in no tab widget any more.
    ZelDockWidgetFromTab(const QString &title, QWidget *page, ZelTextIconTabWidget *tabs,
                         const QIcon &tabIcon, QMainWindow *window);
    /// Puts the page back.
    ~ZelDockWidgetFromTab() override;

    QWidget *page() const { return page_; }
    ZelTextIconTabWidget *tabWidget() const;
    QIcon tabIcon() const { return tabIcon_; }

    /// Lets the page go back by itself when the window is put where no dock can stand.
    void setRestoreEnabled(bool enabled) { restoreEnabled_ = enabled; }
    /// Lets the window be hidden while a workspace is restored.
    void setAllowHide(bool allow) { allowHide_ = allow; }
    /// Takes the name again that is the same each time, by which a layout is stored. A window that
    /// was numbered once keeps it from then on: only the first move of a window takes a number.
    void assignStableName();

    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Puts the page back; the window is deleted later.
    void forceRestoreInView();
    /// Puts the page back if the window neither floats nor stands among the docks.
    void maybeRestoreTab(bool visibleOrTopLevel);
    /// Closes the window; the page goes with it.
    void closeDialog();

protected:
    /// Among the tabs again, unless the window has a place among the docks.
    void redock() override;
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    void putPageBack();

    QPointer<QWidget> page_;
    QPointer<ZelTextIconTabWidget> tabs_;
    QPointer<QMainWindow> mainWindow_;
    QIcon tabIcon_;
    bool restoreOnClose_ = true;
    bool restoreEnabled_ = true;
    bool firstMove_ = true;
    bool allowHide_ = false;
};
