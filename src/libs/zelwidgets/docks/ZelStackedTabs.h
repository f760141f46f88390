#pragma once

#include <QObject>

class QMainWindow;
class QTabBar;

/// A click on one of the tabs that Qt puts below docks that are stacked on each other takes the
/// keyboard into the dock that comes to the front. Bars that Qt leaves behind without tabs are
/// hidden.
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
    static void hideIfUnused(QTabBar *bar);

    explicit ZelStackedTabs(QMainWindow *window);
};
