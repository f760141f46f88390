#pragma once

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QColor>
#include <QPointer>

#include <memory>

class QGraphicsScene;
class QRulerRectItem;
template <typename Item>
class ZelSceneItemOwner;

/// A band along the bottom of the view on which the user points out a time.
class ZELWIDGETS_EXPORT ZelGridRulerDecorator : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    ZelGridRulerDecorator();
    /// Takes the band out of the scene.
    ~ZelGridRulerDecorator() override;

    /// The look has to be set before the band comes up with the first update; only the height
    /// counts later, too.
    void setColor(QColor const &color);
    void setBorderColor(QColor const &color);
    /// In pixels, 1 at first.
    void setBorderWidth(double width);
    /// In pixels, 10 at first.
    void setHeight(double height);
    /// Stacking value of the scene, -1 at first.
    void setZOrder(double z);

    void updateItems(QRectF visibleArea, QTransform sceneToView) override;
    void setScene(QGraphicsScene *scene) override;

Q_SIGNALS:
    /// The left button went down on the band, at this x of the scene.
    void clicked(float time);
    /// The mouse moves with the button held; it may be outside of the band and of the view.
    void moved(float time);
    void released();

private:
    void makeGraphicalRuler();

    QPointer<QGraphicsScene> scene_;
    std::unique_ptr<ZelSceneItemOwner<QRulerRectItem>> ruler_;
    double zOrder_ = -1.0;
    QColor color_;
    QColor borderColor_;
    double borderWidth_ = 1.0;
    double height_ = 10.0;
};
