#pragma once

#include "Mesh.h"

#include <QColor>
#include <QObject>
#include <QString>

#include <vector>

/// What stands in the scene of the viewport.
struct ViewObject
{
    QString name;
    Mesh mesh;
    QColor color;
    /// 0 is dull, 1 is polished.
    float gloss = 0.3F;
    bool isVisible = true;
};

/// Light and background.
struct Studio
{
    QString name;
    /// Where the light comes from: the angle around the scene and the height, in degrees.
    float lightYaw = 0;
    float lightPitch = 45;
    QColor light;
    /// What comes from all around.
    QColor ambient;
    QColor skyTop;
    QColor skyBottom;
    QColor floor;

    QVector3D lightDirection() const;
};

/// A still life on a floor and the studios that it can be shown in.
class ViewScene : public QObject
{
    Q_OBJECT

public:
    explicit ViewScene(QObject *parent = nullptr);

    int objectCount() const { return int(objects_.size()); }
    const ViewObject &object(int index) const { return objects_[size_t(index)]; }
    const std::vector<ViewObject> &objects() const { return objects_; }
    int triangleCount() const;
    const Mesh &floorMesh() const { return floor_; }
    /// The selected object, the first of several; -1 for none.
    int selected() const { return selection_.value(0, -1); }
    /// All that are selected.
    const QList<int> &selection() const { return selection_; }

    int studioCount() const { return int(studios_.size()); }
    int currentStudio() const { return currentStudio_; }
    const Studio &studio(int index) const { return studios_[size_t(index)]; }
    /// The current one, or plain even light if studios are switched off.
    const Studio &studioInForce() const;
    bool studiosAreOn() const { return studiosAreOn_; }

    /// Unknown objects are ignored; so are setters that change nothing.
    void setVisible(int object, bool visible);
    void setColor(int object, const QColor &color);
    void setGloss(int object, float gloss);
    void select(int object);
    /// Selects several in place of all.
    void select(const QList<int> &objects);
    void showOnly(int object);
    void showAll();
    void setCurrentStudio(int index);
    void setStudiosOn(bool on);
    void turnLight(float degrees);
    void setLightHeight(float degrees);

Q_SIGNALS:
    void changed();
    void selectionChanged(int object);
    void studioChanged();

private:
    bool has(int object) const { return object >= 0 && object < objectCount(); }

    std::vector<ViewObject> objects_;
    std::vector<Studio> studios_;
    Studio plainLight_;
    Mesh floor_;
    QList<int> selection_;
    int currentStudio_ = 0;
    bool studiosAreOn_ = true;
};
