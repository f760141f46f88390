#pragma once

#include "OrbitCamera.h"

#include <QColor>
#include <QImage>
#include <QSize>

#include <optional>
#include <vector>

class ViewScene;

/// One picture of a scene, drawn into an image with a depth buffer, band by band from the top, so
/// that a caller can stop after any band and go on later. It has a copy of all it needs.
class RenderJob
{
public:
    struct Options
    {
        QSize size;
        /// 2 computes four samples for a pixel.
        int samplesPerSide = 1;
        /// Tints the selected objects.
        QColor selection = {};
    };

    RenderJob(const ViewScene &scene, const OrbitCamera &camera, const Options &options);
    ~RenderJob();
    RenderJob(const RenderJob &) = delete;
    RenderJob &operator=(const RenderJob &) = delete;

    /// False if the picture was complete before.
    bool renderNextBand();
    void renderAll();
    bool isDone() const;
    /// Black where a band was not drawn yet.
    const QImage &image() const { return image_; }
    OrbitCamera camera() const { return camera_; }

    /// The object that a pixel shows; -1 for the floor, the sky and pixels outside.
    int objectAt(const QPoint &pixel) const;
    /// All objects that pixels of the rectangle show, in the order of the scene.
    QList<int> objectsIn(const QRect &pixels) const;
    /// The point of the world that a pixel shows; nothing for the sky.
    std::optional<QVector3D> pointAt(const QPoint &pixel) const;

private:
    struct Surface;
    struct Vertex;
    struct Triangle;
    struct Light;
    struct Band;

    void addScene(const ViewScene &scene);
    void addMesh(const struct Mesh &mesh, int surface);
    void addShadow(const struct Mesh &mesh);
    void addClipped(const Vertex (&corners)[3], int surface);
    void addTriangle(const Vertex &a, const Vertex &b, const Vertex &c, int surface);
    void project(Vertex *vertex) const;
    void drawTriangle(const Triangle &triangle, Band *band) const;
    void drawSpan(const Triangle &triangle, Band *band, int y, int from, int to) const;
    QRgb shade(const Surface &surface, const QVector3D &point, const QVector3D &normal,
               const QVector3D &sky) const;
    QVector3D skyAt(int row) const;
    void resolve(const Band &band);

    OrbitCamera camera_;
    QMatrix4x4 view_;
    QVector3D eye_;
    int samples_;
    QSize inner_;
    QImage image_;
    std::vector<Surface> surfaces_;
    std::vector<Triangle> triangles_;
    std::vector<std::vector<int>> trianglesOfBand_;
    std::vector<float> nearness_;
    std::vector<qint16> objects_;
    std::unique_ptr<Light> light_;
    size_t nextBand_ = 0;
};
