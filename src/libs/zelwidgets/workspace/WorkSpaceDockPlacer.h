#pragma once

#include <QList>
#include <QPointer>
#include <QRect>
#include <QSize>

class QDockWidget;
class QMainWindow;

/// Holds docks at sizes until the layout of their window has settled.
class WorkSpaceDockPlacer
{
public:
    explicit WorkSpaceDockPlacer(QMainWindow *window);
    /// Releases.
    ~WorkSpaceDockPlacer();
    WorkSpaceDockPlacer(const WorkSpaceDockPlacer &) = delete;
    WorkSpaceDockPlacer &operator=(const WorkSpaceDockPlacer &) = delete;

    /// Puts a floating dock there and fixes its size. One that is docked gets the width fixed at
    /// the left and right of the window, the height elsewhere. Empty rectangles do nothing.
    void place(QDockWidget *dock, const QRect &rect);
    /// Gives the docks the freedom back that they had; what else has a fixed size loses it.
    void release();

private:
    struct Entry
    {
        QPointer<QDockWidget> dock;
        QSize minimum;
    };

    QPointer<QMainWindow> window_;
    QList<Entry> entries_;
};
