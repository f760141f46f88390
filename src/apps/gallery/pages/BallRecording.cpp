#include "BallRecording.h"

#include <cmath>

namespace {

constexpr double gravity = 9.81;
/// Deceleration per squared speed: a light ball of a hand's width.
constexpr double drag = 0.02;
/// Slower than this the ball stays on the ground.
constexpr double restSpeed = 0.15;
constexpr int stepsPerPicture = 20;

struct Ball
{
    double height = 0.0;
    double speed = 0.0;

    void step(double time, double bounciness)
    {
        const double former = speed;
        speed -= (gravity + drag * speed * std::abs(speed)) * time;
        height += 0.5 * (former + speed) * time;
        if (height > 0.0 || speed > 0.0)
            return;
        height = 0.0;
        speed = speed < -restSpeed ? -bounciness * speed : 0.0;
    }
};

} // namespace

QList<QPointF> BallRecording::samples() const
{
    const int count = int(std::lround(duration * picturesPerSecond));
    const double step = 1.0 / picturesPerSecond / stepsPerPicture;
    Ball ball{dropHeight};
    QList<QPointF> result{QPointF(0.0, dropHeight)};
    result.reserve(count + 1);
    for (int picture = 1; picture <= count; ++picture) {
        for (int i = 0; i < stepsPerPicture; ++i)
            ball.step(step, bounciness);
        result.append(QPointF(double(picture) / picturesPerSecond, ball.height));
    }
    return result;
}
