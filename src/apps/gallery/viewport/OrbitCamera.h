#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QVector3D>

/// A camera that looks at a target from a distance. Angles are in degrees, lengths in metres; all
/// operations keep the numbers inside sensible limits.
class OrbitCamera
{
public:
    QVector3D target() const { return target_; }
    float distance() const { return distance_; }
    float yaw() const { return yaw_; }
    float pitch() const { return pitch_; }
    float roll() const { return roll_; }
    /// The vertical angle of view.
    float fieldOfView() const { return fieldOfView_; }
    QVector3D eye() const;
    /// From the world to the camera, which looks along -z.
    QMatrix4x4 view() const;
    /// How much wider than the distance from the camera one half of the view's height is.
    float halfHeight() const;

    void setTarget(const QVector3D &target) { target_ = target; }
    void setFieldOfView(float degrees);
    void setAngles(float yaw, float pitch);
    /// Turns around the target.
    void orbit(const QPointF &degrees);
    /// Moves sideways, so that what is at the target follows a pointer that moves by the pixels.
    void pan(const QPointF &pixels, int viewHeight);
    /// Moves towards the target; negative steps move away.
    void dolly(float steps);
    /// Rolls around the line of sight.
    void twist(float degrees);
    /// Narrows the angle of view; negative steps widen it.
    void changeFocalLength(float steps);
    /// The same, but moves away so that what is at the target keeps its size.
    void changePerspective(float steps);
    /// Shows a ball whole, from the present direction.
    void fit(const QVector3D &center, float radius);

    bool operator==(const OrbitCamera &) const = default;

private:
    QVector3D target_{0.0F, 0.8F, 0.0F};
    float distance_ = 7.5F;
    float yaw_ = 35.0F;
    float pitch_ = 24.0F;
    float roll_ = 0.0F;
    float fieldOfView_ = 38.0F;
};
