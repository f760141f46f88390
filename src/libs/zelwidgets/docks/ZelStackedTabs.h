#pragma once

#include <QObject>

class QMainWindow;
class QTabBar;

/// A click on one of the tabs that Qt puts below docks that are stacked on each other takes the
/// keyboard into the dock that comes to the front.
class ZelStackedTabs : public QObject
{
    Q_OBJECT

public:
    /// Does so for the tabs of a main window, also for those that come later. Does nothing without
    /// a window or for one that has been given already.
    static void watch(QMainWindow *window);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit ZelStackedTabs(QMainWindow *window);
};
