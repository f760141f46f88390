#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the bar of a gradient, the handles of its stops and those of its slopes lie.
class ZelGradientGeometry
{
public:
    /// Half the side of a handle.
    static constexpr int reach = 6;
    /// From the edge of the bar to the centre of a handle.
    static constexpr int handleDistance = 18;
    static constexpr float mostSlope = 4.0f;

    ZelGradientGeometry() = default;
    explicit ZelGradientGeometry(const QRect &bar);
    /// Above the bar is room for opacity stops if there can be any.
    ZelGradientGeometry(const QSize &widget, bool hasAlpha);

    QRect bar() const { return bar_; }

    int pixelOf(float location) const;
    /// Not clamped; 0 in a bar without width.
    float locationOf(int pixel) const;
    QPoint handleOf(float location, bool isAlpha) const;
    QRect handleRect(float location, bool isAlpha) const;

    /// A slope handle moves in the middle half of the interval, the nearer to the selected stop the
    /// larger the slope is.
    int slopePixel(float slope, float selected, float neighbour) const;
    /// Always 0 to mostSlope.
    float slopeAt(int pixel, float selected, float neighbour) const;

private:
    QRect bar_;
};
