#include "CurveHistory.h"

#include <QScopedValueRollback>

class CurveHistory::Step : public QUndoCommand
{
public:
    Step(CurveHistory *history, State before, State after)
        : history_(history)
        , before_(std::move(before))
        , after_(std::move(after))
    {}

    void undo() override { history_->restore(before_); }
    void redo() override { history_->restore(after_); }

private:
    CurveHistory *history_;
    State before_;
    State after_;
};

CurveHistory::CurveHistory(const QList<ZelBezierCurveModel *> &curves, QObject *parent)
    : QObject(parent)
    , curves_(curves)
    , recorded_(state())
{
    stack_.setUndoLimit(200);
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &CurveHistory::push);
    for (ZelBezierCurveModel *curve : curves_)
        connect(curve, &ZelCurveModel::changed, this, &CurveHistory::onChanged);
}

void CurveHistory::begin()
{
    push();
    isDrag_ = true;
}

void CurveHistory::end()
{
    isDrag_ = false;
    push();
}

CurveHistory::State CurveHistory::state() const
{
    State state;
    for (const ZelBezierCurveModel *curve : curves_)
        state << curve->vertices();
    return state;
}

void CurveHistory::restore(const State &state)
{
    const QScopedValueRollback<bool> restoring(isRestoring_, true);
    for (qsizetype i = 0; i < curves_.size(); ++i) {
        if (curves_[i]->vertices() != state[i])
            curves_[i]->setVertices(state[i]);
    }
    recorded_ = state;
}

void CurveHistory::onChanged()
{
    if (!isRestoring_ && !isDrag_)
        turn_.start(0);
}

void CurveHistory::push()
{
    turn_.stop();
    const State now = state();
    if (now != recorded_)
        stack_.push(new Step(this, recorded_, now));
}
