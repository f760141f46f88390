#include "RenderJob.h"

#include "ViewScene.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int bandRows = 16;
constexpr float nearPlane = 0.05F;
constexpr float fadeStart = 4.5F;
constexpr float fadeEnd = 8.8F;
constexpr float gridWidth = 0.02F;
constexpr float gridFade = 14.0F;
constexpr int noObject = -1;
/// Shadows lie on the floor, whose depth they can't be told from.
constexpr int floorMark = -2;

/// Light adds up linearly; squares and roots are near enough to what displays do.
QVector3D linear(const QColor &color)
{
    const auto square = [](float value) {
        return value * value;
    };
    return {square(color.redF()), square(color.greenF()), square(color.blueF())};
}

int displayed(float light)
{
    return int(std::sqrt(std::clamp(light, 0.0F, 1.0F)) * 255.0F + 0.5F);
}

QRgb displayed(const QVector3D &light)
{
    return qRgb(displayed(light.x()), displayed(light.y()), displayed(light.z()));
}

QVector3D mixed(const QVector3D &a, const QVector3D &b, float part)
{
    return a + (b - a) * part;
}

float smoothStep(float from, float to, float value)
{
    const float t = std::clamp((value - from) / (to - from), 0.0F, 1.0F);
    return t * t * (3 - 2 * t);
}

} // namespace

struct RenderJob::Surface
{
    enum Kind { Object, Floor, Shadow };
    Kind kind = Object;
    int object = noObject;
    QVector3D color;
    /// The highlight is raised to the power of two to this.
    int polish = 4;
    float gloss = 0;
    bool isSelected = false;
};

struct RenderJob::Vertex
{
    QVector3D point;
    QVector3D normal;
    QVector3D inView;
    float x = 0;
    float y = 0;
    /// One over the distance along the line of sight.
    float nearness = 0;
};

struct RenderJob::Triangle
{
    std::array<Vertex, 3> corners;
    int surface = 0;
    float area = 0;
};

struct RenderJob::Light
{
    QVector3D direction;
    QVector3D color;
    QVector3D ambient;
    QVector3D skyTop;
    QVector3D skyBottom;
    QVector3D selection;
};

struct RenderJob::Band
{
    int top = 0;
    int rows = 0;
    int width = 0;
    std::vector<QRgb> pixels;
    std::vector<float> nearness;
    std::vector<qint16> objects;

    size_t at(int x, int y) const { return size_t(y - top) * size_t(width) + size_t(x); }
};

RenderJob::RenderJob(const ViewScene &scene, const OrbitCamera &camera, const Options &options)
    : camera_(camera)
    , view_(camera.view())
    , eye_(view_.inverted().map(QVector3D()))
    , samples_(std::clamp(options.samplesPerSide, 1, 2))
    , inner_(options.size.expandedTo(QSize(1, 1)) * samples_)
    , image_(options.size.expandedTo(QSize(1, 1)), QImage::Format_RGB32)
    , nearness_(size_t(image_.width()) * size_t(image_.height()), 0.0F)
    , objects_(nearness_.size(), noObject)
    , light_(std::make_unique<Light>())
{
    image_.fill(Qt::black);
    const Studio &studio = scene.studioInForce();
    *light_ = {studio.lightDirection(), linear(studio.light),     linear(studio.ambient),
               linear(studio.skyTop),   linear(studio.skyBottom), linear(options.selection)};
    trianglesOfBand_.resize(size_t((inner_.height() + bandRows - 1) / bandRows));
    addScene(scene);
}

RenderJob::~RenderJob() = default;

void RenderJob::addScene(const ViewScene &scene)
{
    surfaces_.push_back({Surface::Floor, floorMark, linear(scene.studioInForce().floor)});
    surfaces_.push_back({Surface::Shadow, floorMark, surfaces_.front().color});
    addMesh(scene.floorMesh(), 0);
    for (int i = 0; i < scene.objectCount(); ++i) {
        const ViewObject &object = scene.object(i);
        if (!object.isVisible)
            continue;
        surfaces_.push_back({Surface::Object, i, linear(object.color),
                             3 + int(std::lround(object.gloss * 4)), object.gloss,
                             scene.selection().contains(i)});
        addShadow(object.mesh);
        addMesh(object.mesh, int(surfaces_.size()) - 1);
    }
}

void RenderJob::addMesh(const Mesh &mesh, int surface)
{
    std::vector<Vertex> vertices(mesh.positions.size());
    for (size_t i = 0; i < vertices.size(); ++i) {
        vertices[i].point = mesh.positions[i];
        vertices[i].normal = mesh.normals[i];
        vertices[i].inView = view_.map(mesh.positions[i]);
        project(&vertices[i]);
    }
    for (const auto &corners : mesh.triangles)
        addClipped({vertices[size_t(corners[0])], vertices[size_t(corners[1])],
                    vertices[size_t(corners[2])]},
                   surface);
}

/// The mesh pressed flat onto the floor, along the light.
void RenderJob::addShadow(const Mesh &mesh)
{
    Mesh shadow = mesh;
    const QVector3D light = light_->direction;
    for (QVector3D &position : shadow.positions)
        position -= light * (position.y() / light.y());
    addMesh(shadow, 1);
}

void RenderJob::project(Vertex *vertex) const
{
    const float depth = -vertex->inView.z();
    if (depth < nearPlane)
        return;
    const float scale = float(inner_.height()) / 2 / camera_.halfHeight();
    vertex->nearness = 1 / depth;
    vertex->x = float(inner_.width()) / 2 + vertex->inView.x() * vertex->nearness * scale;
    vertex->y = float(inner_.height()) / 2 - vertex->inView.y() * vertex->nearness * scale;
}

/// Cuts off what lies behind the camera.
void RenderJob::addClipped(const Vertex (&corners)[3], int surface)
{
    std::array<Vertex, 4> kept;
    size_t count = 0;
    for (size_t i = 0; i < 3; ++i) {
        const Vertex &from = corners[i];
        const Vertex &to = corners[(i + 1) % 3];
        const float fromDepth = -from.inView.z() - nearPlane;
        const float toDepth = -to.inView.z() - nearPlane;
        if (fromDepth >= 0)
            kept[count++] = from;
        if ((fromDepth >= 0) == (toDepth >= 0))
            continue;
        const float part = fromDepth / (fromDepth - toDepth);
        Vertex cut;
        cut.point = mixed(from.point, to.point, part);
        cut.normal = mixed(from.normal, to.normal, part);
        cut.inView = mixed(from.inView, to.inView, part);
        cut.inView.setZ(-nearPlane);
        project(&cut);
        kept[count++] = cut;
    }
    for (size_t i = 2; i < count; ++i)
        addTriangle(kept[0], kept[i - 1], kept[i], surface);
}

void RenderJob::addTriangle(const Vertex &a, const Vertex &b, const Vertex &c, int surface)
{
    const float area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    // Rows count downwards: what faces the camera has a negative area.
    const bool isFront = area < 0;
    if (area == 0 || (!isFront && surfaces_[size_t(surface)].kind == Surface::Object))
        return;
    const float top = std::min({a.y, b.y, c.y});
    const float bottom = std::max({a.y, b.y, c.y});
    const float left = std::min({a.x, b.x, c.x});
    const float right = std::max({a.x, b.x, c.x});
    if (bottom < 0 || top >= float(inner_.height()) || right < 0 || left >= float(inner_.width()))
        return;
    const int number = int(triangles_.size());
    triangles_.push_back(
        {isFront ? std::array{a, c, b} : std::array{a, b, c}, surface, std::abs(area)});
    const float last = float(inner_.height() - 1);
    const int firstBand = int(std::clamp(top, 0.0F, last)) / bandRows;
    const int lastBand = int(std::clamp(bottom, 0.0F, last)) / bandRows;
    for (int band = firstBand; band <= lastBand; ++band)
        trianglesOfBand_[size_t(band)].push_back(number);
}

bool RenderJob::isDone() const
{
    return nextBand_ >= trianglesOfBand_.size();
}

void RenderJob::renderAll()
{
    while (renderNextBand()) {
    }
}

bool RenderJob::renderNextBand()
{
    if (isDone())
        return false;
    Band band;
    band.top = int(nextBand_) * bandRows;
    band.rows = std::min(bandRows, inner_.height() - band.top);
    band.width = inner_.width();
    const size_t count = size_t(band.rows) * size_t(band.width);
    band.pixels.resize(count);
    band.nearness.assign(count, 0.0F);
    band.objects.assign(count, noObject);
    for (int y = band.top; y < band.top + band.rows; ++y)
        std::fill_n(band.pixels.begin() + qptrdiff(band.at(0, y)), band.width, displayed(skyAt(y)));
    for (const int number : trianglesOfBand_[nextBand_])
        drawTriangle(triangles_[size_t(number)], &band);
    resolve(band);
    ++nextBand_;
    return true;
}

/// Finds the part of each row that lies inside all three edges.
void RenderJob::drawTriangle(const Triangle &triangle, Band *band) const
{
    for (int y = band->top; y < band->top + band->rows; ++y) {
        const float centerY = float(y) + 0.5F;
        float from = 0;
        float to = float(band->width);
        for (size_t i = 0; i < 3; ++i) {
            const Vertex &a = triangle.corners[i];
            const Vertex &b = triangle.corners[(i + 1) % 3];
            // Inside is where slope * x + rest is positive.
            const float slope = a.y - b.y;
            const float rest = (b.x - a.x) * (centerY - a.y) - slope * a.x;
            if (slope > 0)
                from = std::max(from, -rest / slope);
            else if (slope < 0)
                to = std::min(to, -rest / slope);
            else if (rest < 0)
                to = from;
        }
        if (to <= from)
            continue;
        // The pixels whose centres are inside.
        const int first = std::max(0, int(std::ceil(from - 0.5F)));
        const int end = std::min(band->width, int(std::ceil(to - 0.5F)));
        if (first < end)
            drawSpan(triangle, band, y, first, end);
    }
}

void RenderJob::drawSpan(const Triangle &triangle, Band *band, int y, int from, int to) const
{
    const auto &[a, b, c] = triangle.corners;
    const Surface &surface = surfaces_[size_t(triangle.surface)];
    const bool isShadow = surface.kind == Surface::Shadow;
    const QVector3D sky = skyAt(y);
    const float centerY = float(y) + 0.5F;
    // The weights of the corners change by the same step from pixel to pixel.
    const float stepA = (b.y - c.y) / triangle.area;
    const float stepB = (c.y - a.y) / triangle.area;
    const float centerX = float(from) + 0.5F;
    float partA = ((c.x - b.x) * (centerY - b.y) + (b.y - c.y) * (centerX - b.x)) / triangle.area;
    float partB = ((a.x - c.x) * (centerY - c.y) + (c.y - a.y) * (centerX - c.x)) / triangle.area;
    for (int x = from; x < to; ++x, partA += stepA, partB += stepB) {
        const float weightA = partA * a.nearness;
        const float weightB = partB * b.nearness;
        const float weightC = (1 - partA - partB) * c.nearness;
        const float nearness = weightA + weightB + weightC;
        const size_t place = band->at(x, y);
        const bool isSeen =
            isShadow ? band->objects[place] == floorMark : nearness > band->nearness[place];
        if (!isSeen)
            continue;
        const QVector3D point =
            (a.point * weightA + b.point * weightB + c.point * weightC) / nearness;
        const QVector3D normal = a.normal * weightA + b.normal * weightB + c.normal * weightC;
        band->nearness[place] = std::max(nearness, band->nearness[place]);
        band->objects[place] = qint16(surface.object);
        band->pixels[place] = shade(surface, point, normal, sky);
    }
}

QRgb RenderJob::shade(const Surface &surface, const QVector3D &point, const QVector3D &normal,
                      const QVector3D &sky) const
{
    if (surface.kind != Surface::Object) {
        const float reach = std::hypot(point.x(), point.z());
        const float lit = surface.kind == Surface::Shadow ? 0.12F : 1.0F;
        QVector3D color =
            surface.color * (light_->ambient + light_->color * (light_->direction.y() * lit));
        const float toLine = std::min(std::abs(point.x() - std::round(point.x())),
                                      std::abs(point.z() - std::round(point.z())));
        const float distance = (point - eye_).length();
        if (toLine < gridWidth && distance < gridFade)
            color *= 0.72F + 0.28F * distance / gridFade;
        return displayed(mixed(color, sky, smoothStep(fadeStart, fadeEnd, reach)));
    }
    const QVector3D n = normal.normalized();
    const QVector3D toEye = (eye_ - point).normalized();
    const float facing = std::clamp(QVector3D::dotProduct(n, toEye), 0.0F, 1.0F);
    const float diffuse = std::max(0.0F, QVector3D::dotProduct(n, light_->direction));
    float highlight =
        std::max(0.0F, QVector3D::dotProduct(n, (light_->direction + toEye).normalized()));
    for (int i = 0; i < surface.polish; ++i)
        highlight *= highlight;
    const float fromAbove = 0.55F + 0.45F * n.y();
    QVector3D color = surface.color * (light_->ambient * fromAbove + light_->color * diffuse);
    const float rim = (1 - facing) * (1 - facing);
    color += light_->color * (highlight * surface.gloss) + sky * (rim * rim * surface.gloss * 0.6F);
    if (surface.isSelected)
        color = mixed(color, light_->selection, std::min(1.0F, 0.22F + rim));
    return displayed(color);
}

QVector3D RenderJob::skyAt(int row) const
{
    return mixed(light_->skyTop, light_->skyBottom, float(row) / float(inner_.height()));
}

/// Brings the samples of a band into the picture.
void RenderJob::resolve(const Band &band)
{
    const int shift = samples_ == 2 ? 2 : 0;
    for (int row = band.top / samples_; row * samples_ < band.top + band.rows; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image_.scanLine(row));
        for (int column = 0; column < image_.width(); ++column) {
            int red = 0;
            int green = 0;
            int blue = 0;
            for (int sample = 0; sample < samples_ * samples_; ++sample) {
                const QRgb pixel = band.pixels[band.at(column * samples_ + sample % samples_,
                                                       row * samples_ + sample / samples_)];
                red += qRed(pixel);
                green += qGreen(pixel);
                blue += qBlue(pixel);
            }
            line[column] = qRgb(red >> shift, green >> shift, blue >> shift);
            const size_t place = size_t(row) * size_t(image_.width()) + size_t(column);
            const size_t inner = band.at(column * samples_, row * samples_);
            nearness_[place] = band.nearness[inner];
            objects_[place] = band.objects[inner];
        }
    }
}

int RenderJob::objectAt(const QPoint &pixel) const
{
    if (!image_.rect().contains(pixel))
        return noObject;
    return std::max<int>(noObject,
                         objects_[size_t(pixel.y()) * size_t(image_.width()) + size_t(pixel.x())]);
}

QList<int> RenderJob::objectsIn(const QRect &pixels) const
{
    const QRect seen = pixels & image_.rect();
    QList<int> found;
    int last = -1;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            const int object = objectAt({x, y});
            if (object != last && object >= 0 && !found.contains(object))
                found.append(object);
            last = object;
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

std::optional<QVector3D> RenderJob::pointAt(const QPoint &pixel) const
{
    if (!image_.rect().contains(pixel))
        return {};
    const float nearness =
        nearness_[size_t(pixel.y()) * size_t(image_.width()) + size_t(pixel.x())];
    if (nearness <= 0)
        return {};
    const float depth = 1 / nearness;
    const float scale = depth * camera_.halfHeight() * 2 / float(image_.height());
    const QVector3D inView((float(pixel.x()) + 0.5F - float(image_.width()) / 2) * scale,
                           (float(image_.height()) / 2 - float(pixel.y()) - 0.5F) * scale, -depth);
    return view_.inverted().map(inView);
}
