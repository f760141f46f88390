#pragma once

#include <array>
#include <vector>

/// A piece of a GIMP gradient, and what it is in the terms of ours.
struct ZelGradientSegment
{
    enum Function { Linear, Curved, Sine, SphereIncreasing, SphereDecreasing, Step };
    enum Coloring { Rgb, HsvUpwards, HsvDownwards };
    using Rgba = std::array<float, 4>;

    /// Part of a segment that a single cubic follows.
    struct Piece
    {
        float start;
        float end;
        Rgba from;
        Rgba to;
        float slopeOut; ///< of the blend at its start
        float slopeIn;  ///< and at its end
    };

    float left = 0.0f;
    float middle = 0.5f; ///< where the blend is half way
    float right = 1.0f;
    Rgba from = {};
    Rgba to = {};
    Function function = Linear;
    Coloring coloring = Rgb;

    /// None of a segment without extent.
    std::vector<Piece> pieces() const;

private:
    float relativeMiddle() const;
    float blend(float position) const;
    Rgba colorAt(float blend) const;
    std::vector<float> cuts() const;
    float positionOf(float level) const;
    Piece piece(float from, float to) const;
};
