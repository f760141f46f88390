#pragma once

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QColor>
#include <QFont>
#include <QPointer>

#include <memory>
#include <vector>

class QGraphicsScene;
class ZelGridLabelItem;
class ZelGridPositioning;
template <typename Item>
class ZelSceneItemOwner;

/// Writes the time in seconds along the bottom of the view and the value along its left side, one
/// apart unless a positioning says otherwise.
class ZELWIDGETS_EXPORT ZelGridLabelDecorator : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    ZelGridLabelDecorator();
    /// Takes the labels out of the scene.
    ~ZelGridLabelDecorator() override;

    /// Null keeps the former positioning. This and the other setters show with the next update.
    void setPositioning(std::unique_ptr<ZelGridPositioning> positioning);
    /// Black while the colour is invalid.
    void setLabelColor(QColor const &color);
    /// Stacking values of the scene, -1 at first: of the values along the left side and of the
    /// times along the bottom.
    void setZOrderVerticalLabels(double z);
    void setZOrderHorizontalLabels(double z);

    /// Builds all labels anew.
    void updateItems(QRectF visibleArea, QTransform sceneToView) override;
    void setScene(QGraphicsScene *scene) override;

private:
    void readFont();
    void addTimes(const std::vector<float> &xs, double top, const QTransform &sceneToView);
    void addValues(const std::vector<float> &ys, double left, const QTransform &sceneToView);
    ZelGridLabelItem *addLabel(const QString &text, double z);

    std::unique_ptr<ZelGridPositioning> positioning_;
    QPointer<QGraphicsScene> scene_;
    QFont font_;
    int fontHeight_ = 0;
    QColor labelColor_;
    std::vector<ZelSceneItemOwner<ZelGridLabelItem>> labels_;
    double zVertical_ = -1.0;
    double zHorizontal_ = -1.0;
};
