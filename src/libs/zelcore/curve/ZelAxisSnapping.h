#pragma once

#include <ZelCore/zelcore_export.h>

#include <QPoint>

#include <optional>

/// Keeps a dragged pixel position on the horizontal or vertical through an origin.
///
/// Positions stay free until one is farther from the origin than the threshold (distance along both
/// axes together, in pixels). The axis of its larger distance then holds for good, the horizontal
/// one if both are alike.
class ZELCORE_EXPORT ZelAxisSnapping
{
public:
    ZelAxisSnapping(const QPoint &origin, int threshold);

    /// The position, moved onto the axis if one is chosen; it may choose it.
    QPoint adjustPosition(const QPoint &position);
    /// Moves the origin and keeps the chosen axis.
    void resetOrigin(const QPoint &origin);

private:
    QPoint origin_;
    int threshold_;
    std::optional<Qt::Orientation> axis_;
};
