#include "ZelAdaptiveTimer.h"

#include <QPointer>
#include <QTimerEvent>

#include <algorithm>
#include <limits>

ZelAdaptiveTimer::ZelAdaptiveTimer(int longestInterval, QObject *parent)
    : QTimer(parent)
    , longestInterval_(longestInterval)
{
    setSingleShot(false);
}

bool ZelAdaptiveTimer::setNewInterval(int wanted)
{
    // A coarse timer may have more left than its interval.
    const int elapsed = std::max(interval() - remainingTime(), 0);
    const bool isOver = elapsed >= wanted;
    setInterval(std::max(isOver ? wanted : wanted - elapsed, 0));
    return isOver;
}

void ZelAdaptiveTimer::timerEvent(QTimerEvent *event)
{
    const bool isOwn = event->timerId() == timerId();
    const QPointer<ZelAdaptiveTimer> self(this);
    setSingleShot(false);
    QTimer::timerEvent(event);
    if (isOwn && self)
        slowDown();
}

void ZelAdaptiveTimer::slowDown()
{
    if (interval() >= longestInterval_)
        return;
    const qint64 doubled = std::max<qint64>(2 * qint64(interval()), 1);
    setInterval(int(std::min<qint64>(doubled, std::numeric_limits<int>::max())));
}
