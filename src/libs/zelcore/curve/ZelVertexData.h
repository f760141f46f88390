#pragma once

/// The points that a vertex of a curve can have.
enum class ZelVertexData : int {
    Position = 0,
    /// The end of the tangent towards the vertex before.
    InTangent = 1,
    /// The end of the tangent towards the vertex behind.
    OutTangent = 2
};
