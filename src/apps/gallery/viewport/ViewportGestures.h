#pragma once

#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <Qt>

class QMouseEvent;
class QWheelEvent;
class ZelMouseAction;

/// Turns the mouse events of a view into the actions that the table of gestures has for them.
class ViewportGestures : public QObject
{
    Q_OBJECT

public:
    explicit ViewportGestures(QObject *parent = nullptr);

    bool isDragging() const { return state_ == State::Dragging; }
    /// Where the last button was pressed.
    QPoint pressedPlace() const { return pressed_; }
    void press(const QMouseEvent *event);
    void move(const QMouseEvent *event);
    void release(const QMouseEvent *event);
    void doubleClick(const QMouseEvent *event);
    void wheel(const QWheelEvent *event);
    /// Ends a drag; what is left of it means nothing.
    void cancel();

Q_SIGNALS:
    void dragBegan();
    /// The way since the last signal, in pixels.
    void dragged(const QString &action, const QPointF &way);
    void dragEnded();
    void clicked(const QString &action, const QPoint &place);
    /// A notch of the wheel is 1.
    void wheelTurned(const QString &action, double notches);
    /// An event for which the table has no action.
    void unknown();

private:
    enum class State { Idle, Pressed, Dragging, Ignored };

    void tellClick(const ZelMouseAction *action, const QPoint &place);

    State state_ = State::Idle;
    QPoint pressed_;
    QPointF last_;
    QString action_;
};
