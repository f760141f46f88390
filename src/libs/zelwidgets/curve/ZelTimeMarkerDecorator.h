#pragma once

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QPen>
#include <QPointer>

#include <memory>
#include <vector>

class QGraphicsScene;

/// A vertical line with a triangle that the user drags along the time.
///
/// It is cut in two at a height, so that the parts can have different stacking values: one passes
/// in front of a ruler, the other behind the curves.
///
///     auto *marker = new ZelTimeMarkerDecorator(ZelTimeMarkerDecorator::TrianglePosition::Bottom);
///     marker->setPen(QPen(Qt::red, 1));
///     marker->setSplitHeight(20);
///     marker->setZOrderBottom(3);
///     view->addDecoratorToForeground(marker);
class ZELWIDGETS_EXPORT ZelTimeMarkerDecorator : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    /// Where the triangle is; the latter two point aside at half the height of the view.
    enum class TrianglePosition : int { Bottom = 0, Left = 1, Right = 2 };
    Q_ENUM(TrianglePosition)

    explicit ZelTimeMarkerDecorator(TrianglePosition trianglePosition);
    /// Takes the marker out of the scene.
    ~ZelTimeMarkerDecorator() override;

    /// Once the scene is gone the marker is too: each setter then does nothing but write a debug
    /// message.
    ///
    /// The triangle is filled with the pen's colour. Corners are always mitred.
    void setPen(QPen pen);
    /// The pen under the mouse, from the next time on that it comes there.
    void setHoverPen(QPen pen);
    void setUseHoverPen(bool use);
    /// The time, 0 at first, without limits. A position that isn't finite is refused with a
    /// warning.
    void setPosition(double position);
    /// Where the marker is cut, in pixels above the bottom, with the next update. 1 at first.
    void setSplitHeight(double height);
    void setZOrderTop(double z);
    void setZOrderBottom(double z);

    void updateItems(QRectF visibleArea, QTransform sceneToView) override;
    /// Can be set once only, and not to null.
    void setScene(QGraphicsScene *scene) override;

Q_SIGNALS:
    /// The position is another one, by the user or by setPosition().
    void markerPositionChanged(float newTime);

private:
    class TimeMarkerItem;
    struct Items;
    enum SceneState : int { NoSceneSet = 0, SceneValid = 1, SceneDeletedExternally = 2 };

    SceneState sceneState() const;
    /// Whether a setter may go on; the assertion names it.
    bool isUsable(const char *function, int line) const;
    /// Those that are alive: the application can clear the scene.
    std::vector<TimeMarkerItem *> items() const;
    void applyPen(const QPen &pen);

    TrianglePosition trianglePosition_;
    QPointer<QGraphicsScene> scene_;
    bool sceneWasSet_ = false;
    std::unique_ptr<Items> items_;
    QPen pen_;
    QPen hoverPen_;
    double position_ = 0;
    double splitHeight_ = 1.0;
};
