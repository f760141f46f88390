#include "Mesh.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace {

constexpr float turn = 2 * std::numbers::pi_v<float>;

struct Vertex
{
    QVector3D position;
    QVector3D normal;
};

/// A surface over a grid of (columns + 1) x (rows + 1) vertices; u and v go from 0 to 1.
void addGrid(Mesh *mesh, int columns, int rows, const std::function<Vertex(float u, float v)> &at)
{
    const int first = int(mesh->positions.size());
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const Vertex vertex = at(float(column) / float(columns), float(row) / float(rows));
            mesh->positions.push_back(vertex.position);
            mesh->normals.push_back(vertex.normal);
        }
    }
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const int corner = first + row * (columns + 1) + column;
            const int above = corner + columns + 1;
            mesh->triangles.push_back({corner, corner + 1, above + 1});
            mesh->triangles.push_back({corner, above + 1, above});
        }
    }
}

void addFace(Mesh *mesh, const QVector3D &center, const QVector3D &right, const QVector3D &up)
{
    const QVector3D normal = QVector3D::crossProduct(right, up).normalized();
    addGrid(mesh, 1, 1, [&](float u, float v) {
        return Vertex{center + right * (2 * u - 1) + up * (2 * v - 1), normal};
    });
}

void addDisc(Mesh *mesh, float radius, float height, float up, int segments)
{
    addGrid(mesh, segments, 1, [=](float u, float v) {
        const float reach = radius * (up > 0 ? 1 - v : v);
        return Vertex{{reach * std::sin(u * turn), height, reach * std::cos(u * turn)}, {0, up, 0}};
    });
}

} // namespace

Mesh Mesh::moved(const QVector3D &by) const
{
    Mesh mesh = *this;
    for (QVector3D &position : mesh.positions)
        position += by;
    return mesh;
}

QVector3D Mesh::center() const
{
    if (positions.empty())
        return {};
    QVector3D low = positions.front();
    QVector3D high = low;
    for (const QVector3D &p : positions) {
        for (int i = 0; i < 3; ++i) {
            low[i] = std::min(low[i], p[i]);
            high[i] = std::max(high[i], p[i]);
        }
    }
    return (low + high) / 2;
}

float Mesh::radius() const
{
    const QVector3D middle = center();
    float square = 0;
    for (const QVector3D &position : positions)
        square = std::max(square, (position - middle).lengthSquared());
    return std::sqrt(square);
}

Mesh Mesh::ball(float radius, int segments)
{
    Mesh mesh;
    addGrid(&mesh, segments, segments / 2, [radius](float u, float v) {
        const float height = -std::cos(v * turn / 2);
        const float reach = std::sin(v * turn / 2);
        const QVector3D normal(reach * std::sin(u * turn), height, reach * std::cos(u * turn));
        return Vertex{normal * radius, normal};
    });
    return mesh;
}

Mesh Mesh::ring(float radius, float thickness, int segments)
{
    Mesh mesh;
    addGrid(&mesh, segments, segments / 2, [=](float u, float v) {
        const QVector3D outwards(std::sin(u * turn), 0, std::cos(u * turn));
        const QVector3D normal =
            outwards * std::cos(v * turn) + QVector3D(0, 1, 0) * std::sin(v * turn);
        return Vertex{outwards * radius + normal * thickness, normal};
    });
    return mesh;
}

Mesh Mesh::box(const QVector3D &size)
{
    const QVector3D x(size.x() / 2, 0, 0);
    const QVector3D y(0, size.y() / 2, 0);
    const QVector3D z(0, 0, size.z() / 2);
    Mesh mesh;
    addFace(&mesh, x, -z, y);
    addFace(&mesh, -x, z, y);
    addFace(&mesh, y, x, -z);
    addFace(&mesh, -y, x, z);
    addFace(&mesh, z, x, y);
    addFace(&mesh, -z, -x, y);
    return mesh;
}

Mesh Mesh::cone(float bottomRadius, float topRadius, float height, int segments)
{
    Mesh mesh;
    addGrid(&mesh, segments, 1, [=](float u, float v) {
        const QVector3D outwards(std::sin(u * turn), 0, std::cos(u * turn));
        const float reach = bottomRadius + (topRadius - bottomRadius) * v;
        const QVector3D normal = outwards * height + QVector3D(0, bottomRadius - topRadius, 0);
        return Vertex{outwards * reach + QVector3D(0, v * height, 0), normal.normalized()};
    });
    addDisc(&mesh, bottomRadius, 0, -1, segments);
    addDisc(&mesh, topRadius, height, 1, segments);
    return mesh;
}

Mesh Mesh::floor(float halfSide)
{
    Mesh mesh;
    addFace(&mesh, {}, {halfSide, 0, 0}, {0, 0, -halfSide});
    return mesh;
}
