#include "ViewScene.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr float floorHalfSide = 9.0F;

std::vector<ViewObject> stillLife()
{
    const auto on = [](Mesh mesh, float x, float y, float z) {
        return mesh.moved({x, y, z});
    };
    return {
        {ViewScene::tr("Ball"), on(Mesh::ball(0.8F, 48), -1.3F, 0.8F, 0.9F),
         QColor(0xd8, 0x5a, 0x2b), 0.9F},
        {ViewScene::tr("Small ball"), on(Mesh::ball(0.4F, 36), 0.4F, 0.4F, 1.9F),
         QColor(0xe9, 0xb9, 0x3a), 0.6F},
        {ViewScene::tr("Ring"), on(Mesh::ring(0.75F, 0.25F, 56), 1.4F, 0.25F, 0.8F),
         QColor(0x2f, 0x8f, 0x8b), 0.7F},
        {ViewScene::tr("Block"), on(Mesh::box({1.5F, 1.1F, 1.1F}), 0.7F, 0.55F, -1.2F),
         QColor(0x7d, 0x86, 0x96), 0.2F},
        {ViewScene::tr("Column"), on(Mesh::cone(0.45F, 0.38F, 2.4F, 48), -1.6F, 0, -1.1F),
         QColor(0xd9, 0xd3, 0xc7), 0.3F},
        {ViewScene::tr("Cone"), on(Mesh::cone(0.5F, 0, 1.2F, 48), 0.7F, 1.1F, -1.2F),
         QColor(0x4f, 0x6d, 0xc4), 0.4F},
    };
}

std::vector<Studio> studiosOf()
{
    return {
        {ViewScene::tr("Daylight"), 60, 52, QColor(255, 244, 226), QColor(88, 104, 128),
         QColor(96, 124, 160), QColor(196, 208, 220), QColor(170, 170, 166)},
        {ViewScene::tr("Softbox"), -40, 64, QColor(232, 232, 236), QColor(112, 112, 118),
         QColor(58, 60, 66), QColor(128, 130, 136), QColor(140, 140, 144)},
        {ViewScene::tr("Evening"), -75, 18, QColor(255, 168, 104), QColor(66, 62, 92),
         QColor(40, 40, 76), QColor(214, 132, 96), QColor(120, 108, 112)},
        {ViewScene::tr("Night"), 20, 40, QColor(120, 146, 206), QColor(30, 36, 54),
         QColor(10, 14, 26), QColor(36, 44, 66), QColor(78, 84, 98)},
    };
}

} // namespace

QVector3D Studio::lightDirection() const
{
    const float yaw = qDegreesToRadians(lightYaw);
    const float pitch = qDegreesToRadians(lightPitch);
    return {std::cos(pitch) * std::sin(yaw), std::sin(pitch), std::cos(pitch) * std::cos(yaw)};
}

ViewScene::ViewScene(QObject *parent)
    : QObject(parent)
    , objects_(stillLife())
    , studios_(studiosOf())
    , plainLight_{tr("Plain light"),
                  30,
                  60,
                  QColor(150, 150, 150),
                  QColor(140, 140, 140),
                  QColor(110, 112, 116),
                  QColor(110, 112, 116),
                  QColor(130, 130, 132)}
    , floor_(Mesh::floor(floorHalfSide))
{}

int ViewScene::triangleCount() const
{
    size_t count = floor_.triangles.size();
    for (const ViewObject &object : objects_)
        count += object.isVisible ? object.mesh.triangles.size() : 0;
    return int(count);
}

const Studio &ViewScene::studioInForce() const
{
    return studiosAreOn_ ? studio(currentStudio_) : plainLight_;
}

void ViewScene::setVisible(int object, bool visible)
{
    if (!has(object) || objects_[size_t(object)].isVisible == visible)
        return;
    objects_[size_t(object)].isVisible = visible;
    Q_EMIT changed();
}

void ViewScene::setColor(int object, const QColor &color)
{
    if (!has(object) || !color.isValid() || objects_[size_t(object)].color == color)
        return;
    objects_[size_t(object)].color = color;
    Q_EMIT changed();
}

void ViewScene::setGloss(int object, float gloss)
{
    const float wanted = std::clamp(gloss, 0.0F, 1.0F);
    if (!has(object) || objects_[size_t(object)].gloss == wanted)
        return;
    objects_[size_t(object)].gloss = wanted;
    Q_EMIT changed();
}

void ViewScene::select(int object)
{
    select(QList<int>{object});
}

void ViewScene::select(const QList<int> &objects)
{
    QList<int> wanted;
    for (const int object : objects) {
        if (has(object) && !wanted.contains(object))
            wanted.append(object);
    }
    if (wanted == selection_)
        return;
    selection_ = wanted;
    Q_EMIT selectionChanged(selected());
    Q_EMIT changed();
}

void ViewScene::showOnly(int object)
{
    if (!has(object))
        return;
    for (int i = 0; i < objectCount(); ++i)
        objects_[size_t(i)].isVisible = i == object;
    Q_EMIT changed();
}

void ViewScene::showAll()
{
    for (ViewObject &object : objects_)
        object.isVisible = true;
    Q_EMIT changed();
}

void ViewScene::setCurrentStudio(int index)
{
    if (index < 0 || index >= studioCount() || index == currentStudio_)
        return;
    currentStudio_ = index;
    Q_EMIT studioChanged();
    Q_EMIT changed();
}

void ViewScene::setStudiosOn(bool on)
{
    if (on == studiosAreOn_)
        return;
    studiosAreOn_ = on;
    Q_EMIT studioChanged();
    Q_EMIT changed();
}

void ViewScene::turnLight(float degrees)
{
    Studio &studio = studiosAreOn_ ? studios_[size_t(currentStudio_)] : plainLight_;
    studio.lightYaw = std::remainder(studio.lightYaw + degrees, 360.0F);
    Q_EMIT changed();
}

void ViewScene::setLightHeight(float degrees)
{
    Studio &studio = studiosAreOn_ ? studios_[size_t(currentStudio_)] : plainLight_;
    studio.lightPitch = std::clamp(degrees, 5.0F, 90.0F);
    Q_EMIT changed();
}
