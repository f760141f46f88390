#pragma once

namespace orv::color {

/// The blend between two neighbours on a line: a cubic of the relative position u between them,
/// ((a u + b) u + c) u, that goes from 0 at the start to 1 at the end.
struct BlendCurve
{
    float start = 0.0f;
    float end = 1.0f;
    float invSpan = 1.0f; ///< 1 / (end - start); infinite where the two lie on one place
    float a = 0.0f;
    float b = 0.0f;
    float c = 0.0f;
};

} // namespace orv::color
