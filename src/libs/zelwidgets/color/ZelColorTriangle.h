#pragma once

#include <ZelWidgets/ZelSpectrumDisplay>

#include <QBrush>
#include <QColor>
#include <QImage>

#include <memory>

class ZelTriangleGeometry;

/// A ring of hues around a triangle of saturation and value, picked by mouse and by keys.
///
/// Left and Right turn the hue by a degree; Up and Down take from and add to the value, with Shift
/// the saturation, 5 of 255 at a time. Greys and black keep the hue that was shown before.
/// colorChanged() is emitted once for each change by the user, with a colour in RGB.
class ZELWIDGETS_EXPORT ZelColorTriangle : public ZelSpectrumDisplay
{
    Q_OBJECT

public:
    explicit ZelColorTriangle(ZelColor const &color, QWidget *parent = nullptr);
    ~ZelColorTriangle() override;

    void setColor(ZelColor color) override;
    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    friend class AccessibleTriangle;
    enum class SelectionMode : int { None, Hue, Triangle };

    void pick(QPointF point);
    void pickHue(QPointF point);
    void pickInTriangle(QPointF point);
    void step(int hue, int saturation, int value);
    void take(const QColor &color);
    bool needsBackground() const;
    void generateBackground();

    std::unique_ptr<ZelTriangleGeometry> geometry_;
    QImage background_;
    QBrush backgroundFill_;
    QColor currentColor_;
    int currentHue_ = 0;
    bool backgroundStale_ = true;
    QPointF selectorPoint_;
    SelectionMode selectionMode_ = SelectionMode::None;
};
