#pragma once

#include <QColor>
#include <QPointF>
#include <QSize>

/// A ring of hues around a triangle of saturation and value: where its parts lie, and which point
/// stands for which colour.
///
/// Corner A has the pure hue, B is black, C is white; A points at its hue on the ring, on which the
/// hues go clockwise from 0 at the top. Angles are in radians from 0 to a full turn, against the
/// clock from the right.
class ZelTriangleGeometry
{
public:
    void setSize(QSize size);
    /// In degrees from 0 to 359.
    void setHue(int hue);
    /// Of corner A.
    void setAngle(double angle);

    double angleA() const { return angleA_; }
    double angleB() const { return angleB_; }
    double angleC() const { return angleC_; }
    QPointF center() const { return center_; }
    QPointF pointA() const { return pointA_; }
    QPointF pointB() const { return pointB_; }
    QPointF pointC() const { return pointC_; }
    /// The centre of the marker on the ring.
    QPointF huePoint() const { return huePoint_; }
    int outerRadius() const { return outerRadius_; }
    /// Where the ring begins.
    double innerRadius() const { return outerRadius_ - outerRadius_ / 5.0; }
    int penWidth() const { return penWidth_; }
    /// The diameter of the markers.
    int markerSize() const { return markerSize_; }

    /// Whether a press there is meant for the triangle; else it is meant for the ring.
    bool isInsideRing(QPointF point) const;
    /// 0 at the centre.
    double angleAt(QPointF point) const;
    /// The hue, 0 to 359, to which corner A points at an angle.
    static int hueAt(double angle);

    /// The colour's own hue doesn't matter.
    QPointF pointOf(const QColor &color) const;
    /// The colour, as HSV of this hue, of a point of the triangle.
    QColor colorAt(QPointF point, int hue) const;
    /// The point of the triangle that is nearest to one anywhere.
    QPointF nearest(QPointF point) const;

private:
    struct Weights
    {
        double a;
        double b;
        double c;
    };
    Weights weights(QPointF point) const;
    QPointF onCircle(double angle, double radius) const;
    void placeCorners();

    double angleA_ = 0;
    double angleB_ = 0;
    double angleC_ = 0;
    QPointF center_;
    QPointF pointA_;
    QPointF pointB_;
    QPointF pointC_;
    QPointF huePoint_;
    int penWidth_ = 0;
    int markerSize_ = 0;
    int outerRadius_ = 0;
};
