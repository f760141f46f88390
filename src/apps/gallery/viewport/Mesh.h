#pragma once

#include <QVector3D>

#include <array>
#include <vector>

/// A surface of triangles with a normal at each vertex; seen from outside the vertices of a
/// triangle go round against the clock.
struct Mesh
{
    std::vector<QVector3D> positions;
    std::vector<QVector3D> normals;
    std::vector<std::array<int, 3>> triangles;

    /// Moves all vertices.
    Mesh moved(const QVector3D &by) const;
    QVector3D center() const;
    /// Of the ball around center() that holds all vertices.
    float radius() const;

    static Mesh ball(float radius, int segments);
    static Mesh ring(float radius, float thickness, int segments);
    static Mesh box(const QVector3D &size);
    /// Stands on the floor; the top radius may be 0.
    static Mesh cone(float bottomRadius, float topRadius, float height, int segments);
    /// A flat square of the floor, facing up.
    static Mesh floor(float halfSide);
};
