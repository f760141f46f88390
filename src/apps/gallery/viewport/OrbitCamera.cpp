#include "OrbitCamera.h"

#include <QQuaternion>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr float steepest = 89.0F;
constexpr float nearest = 0.4F;
constexpr float farthest = 80.0F;
constexpr float narrowest = 8.0F;
constexpr float widest = 110.0F;
constexpr float stepFactor = 0.9F;

float inOneTurn(float degrees)
{
    return std::remainder(degrees, 360.0F);
}

} // namespace

QVector3D OrbitCamera::eye() const
{
    const float yaw = qDegreesToRadians(yaw_);
    const float pitch = qDegreesToRadians(pitch_);
    const QVector3D direction(std::cos(pitch) * std::sin(yaw), std::sin(pitch),
                              std::cos(pitch) * std::cos(yaw));
    return target_ + direction * distance_;
}

QMatrix4x4 OrbitCamera::view() const
{
    QMatrix4x4 matrix;
    matrix.rotate(roll_, 0, 0, 1);
    matrix.translate(0, 0, -distance_);
    matrix.rotate(pitch_, 1, 0, 0);
    matrix.rotate(-yaw_, 0, 1, 0);
    matrix.translate(-target_);
    return matrix;
}

float OrbitCamera::halfHeight() const
{
    return std::tan(qDegreesToRadians(fieldOfView_) / 2);
}

void OrbitCamera::setFieldOfView(float degrees)
{
    fieldOfView_ = std::clamp(degrees, narrowest, widest);
}

void OrbitCamera::setAngles(float yaw, float pitch)
{
    yaw_ = inOneTurn(yaw);
    pitch_ = std::clamp(pitch, -steepest, steepest);
}

void OrbitCamera::orbit(const QPointF &degrees)
{
    setAngles(yaw_ - float(degrees.x()), pitch_ + float(degrees.y()));
}

void OrbitCamera::pan(const QPointF &pixels, int viewHeight)
{
    const float unit = 2 * halfHeight() * distance_ / float(std::max(1, viewHeight));
    const QVector3D inView(-float(pixels.x()) * unit, float(pixels.y()) * unit, 0);
    target_ += view().inverted().mapVector(inView);
}

void OrbitCamera::dolly(float steps)
{
    distance_ = std::clamp(distance_ * std::pow(stepFactor, steps), nearest, farthest);
}

void OrbitCamera::twist(float degrees)
{
    roll_ = inOneTurn(roll_ + degrees);
}

void OrbitCamera::changeFocalLength(float steps)
{
    setFieldOfView(fieldOfView_ * std::pow(stepFactor, steps));
}

void OrbitCamera::changePerspective(float steps)
{
    const OrbitCamera before = *this;
    changeFocalLength(steps);
    const float distance = distance_ * before.halfHeight() / halfHeight();
    if (distance < nearest || distance > farthest)
        *this = before;
    else
        distance_ = distance;
}

void OrbitCamera::fit(const QVector3D &center, float radius)
{
    target_ = center;
    const float half = qDegreesToRadians(fieldOfView_) / 2;
    distance_ = std::clamp(radius / std::sin(half), nearest, farthest);
}
