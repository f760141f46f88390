#pragma once

#include <QList>
#include <QPointF>

/// A ball that falls through air, bounces and comes to rest: its height in metres over the time in
/// seconds, as a camera of that many pictures a second records it for ten seconds.
struct BallRecording
{
    double dropHeight = 3.0;
    /// The part of its speed that the ball keeps at a bounce.
    double bounciness = 0.84;
    int picturesPerSecond = 240;

    static constexpr double duration = 10.0;

    QList<QPointF> samples() const;
};
