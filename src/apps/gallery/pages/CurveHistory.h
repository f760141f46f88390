#pragma once

#include <ZelCore/ZelBezierCurveModel>

#include <QObject>
#include <QTimer>
#include <QUndoStack>

/// Remembers what the user did to some curves: one entry a drag, and one for every other change.
class CurveHistory : public QObject
{
    Q_OBJECT

public:
    using State = QList<QList<ZelBezierCurveModel::Vertex>>;

    explicit CurveHistory(const QList<ZelBezierCurveModel *> &curves, QObject *parent = nullptr);

    QUndoStack *stack() { return &stack_; }

    /// Everything that happens between the two is one entry; nothing if it ends as it began.
    void begin();
    void end();

private:
    class Step;

    State state() const;
    void restore(const State &state);
    void onChanged();
    void push();

    QList<ZelBezierCurveModel *> curves_;
    QUndoStack stack_;
    State recorded_;
    /// Other changes end with the turn of the event loop.
    QTimer turn_;
    bool isDrag_ = false;
    bool isRestoring_ = false;
};
