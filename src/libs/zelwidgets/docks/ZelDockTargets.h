#pragma once

#include "docks/ZelDockSubject.h"

#include <QDockWidget>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QScreen>

/// A place that a panel can go to.
struct ZelDockTarget
{
    enum class Place {
        Side,     ///< alone at a side of the window
        Before,   ///< above or left of a dock
        Behind,   ///< below or right of a dock
        OnTop,    ///< as a tab together with a dock
        Floating, ///< a window of its own
        Tabs      ///< back among the tabs that the panel came from
    };

    Place place = Place::Side;
    Qt::DockWidgetArea area = Qt::NoDockWidgetArea;
    QPointer<QDockWidget> neighbour;
    QPointer<QScreen> screen; ///< of Floating, if there are several

    bool operator==(const ZelDockTarget &other) const = default;
};

/// All places for one panel, as arrow keys walk them: the columns are the left side, the top, a
/// window of its own, the bottom and the right side, the rows the places in each. It starts at the
/// present place.
class ZelDockTargets
{
public:
    ZelDockTargets() = default;
    ZelDockTargets(QMainWindow *window, const ZelDockSubject &subject);

    bool isEmpty() const { return columns_.isEmpty(); }
    const ZelDockTarget &current() const { return columns_[column_][row_]; }
    bool isPresentPlace() const { return current() == present_; }
    /// Goes on by a column or a row; false at the end.
    bool move(const QPoint &step);

    /// The place in words.
    QString text() const;
    /// Where the panel would be, in the main window.
    QRect area() const;
    /// Takes the panel there; the dock that it is now, null if it is none.
    QDockWidget *apply();

private:
    QList<ZelDockTarget> placesAt(Qt::DockWidgetArea area) const;
    QList<QDockWidget *> neighboursAt(Qt::DockWidgetArea area) const;
    QList<ZelDockTarget> windows() const;
    ZelDockTarget findPresent() const;
    void add(const QList<ZelDockTarget> &column);
    QRect floatingArea(const QRect &middle) const;
    void insert(QDockWidget *dock);

    QPointer<QMainWindow> window_;
    ZelDockSubject subject_;
    QList<QList<ZelDockTarget>> columns_;
    ZelDockTarget present_;
    int column_ = 0;
    int row_ = 0;
};
