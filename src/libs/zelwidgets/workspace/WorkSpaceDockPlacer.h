#pragma once

#include <QList>
#include <QPointer>
#include <QRect>
#include <QSize>

class QDockWidget;
class QMainWindow;

/// Brings docks to their places: holds them at their sizes until the layout of their window has
/// settled.
class WorkSpaceDockPlacer
{
public:
    explicit WorkSpaceDockPlacer(QMainWindow *window);
    /// Releases.
    ~WorkSpaceDockPlacer();
    WorkSpaceDockPlacer(const WorkSpaceDockPlacer &) = delete;
    WorkSpaceDockPlacer &operator=(const WorkSpaceDockPlacer &) = delete;

    /// Empty rectangles are left out.
    void add(QDockWidget *dock, const QRect &rect);
    /// Puts floating docks there and fixes their sizes. Those that are docked get the width fixed
    /// at the left and right of the window, the height elsewhere. False if all docks are as they
    /// should be: then nothing was done.
    bool hold();
    /// Gives the docks the freedom back that they had; what else has a fixed size loses it.
    void release();

private:
    struct Entry
    {
        QPointer<QDockWidget> dock;
        QRect rect;
        QSize minimum;
    };

    bool isInPlace(const Entry &entry) const;
    void hold(Entry &entry);

    QPointer<QMainWindow> window_;
    QList<Entry> entries_;
    bool holds_ = false;
};
