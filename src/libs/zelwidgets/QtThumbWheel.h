#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

#include <memory>

class QtThumbWheelPrivate;

/// A wheel that is seen from its edge and turned with the thumb: for whole numbers whose way is
/// longer than a slider has room for.
///
///     auto *wheel = new QtThumbWheel(-1000, 1000, 50, 0, Qt::Horizontal, panel);
///     wheel->setTransmissionRatio(0.25);
///     connect(wheel, &QtThumbWheel::valueChanged, scene, &Scene::setOffset);
///
/// It turns by dragging, by the keys of a slider and by the mouse wheel while Control is held, with
/// Shift by pages. Escape takes a drag back. To the right, or to the left in a layout from right to
/// left, and upwards the value rises.
class ZELWIDGETS_EXPORT QtThumbWheel : public QWidget
{
    Q_OBJECT
    /// Steps of the value for each pixel of a drag; 1 at first. Negative ones turn the other way.
    Q_PROPERTY(double transmissionRatio READ transmissionRatio WRITE setTransmissionRatio)
    /// Whether the minimum follows the maximum; false at first.
    Q_PROPERTY(bool wrapsAround READ wrapsAround WRITE setWrapsAround)
    /// How many cogs are in sight, 1 to 360; 15 at first.
    Q_PROPERTY(int cogCount READ cogCount WRITE setCogCount)
    /// Whether a drag ends its effect at the ends of the wheel; otherwise, and at first, it goes on
    /// outside of it.
    Q_PROPERTY(bool limitedDrag READ limitedDrag WRITE setLimitedDrag)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /// A vertical wheel from 0 to 99.
    explicit QtThumbWheel(QWidget *parent = nullptr);
    QtThumbWheel(int minimum, int maximum, int pageStep, int value, Qt::Orientation orientation,
                 QWidget *parent = nullptr);
    ~QtThumbWheel() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    int singleStep() const;
    int pageStep() const;
    Qt::Orientation orientation() const;
    double transmissionRatio() const;
    bool wrapsAround() const;
    int cogCount() const;
    bool limitedDrag() const;
    /// Whether the user is dragging the wheel.
    bool isWheelDown() const;

    /// A maximum below the minimum counts as the minimum. The value is brought into the range.
    void setRange(int minimum, int maximum);
    /// Steps below 1 count as 1.
    void setSingleStep(int step);
    void setPageStep(int step);
    void setOrientation(Qt::Orientation orientation);
    /// Not a number and the infinities are refused with a warning.
    void setTransmissionRatio(double ratio);
    void setWrapsAround(bool wraps);
    void setCogCount(int count);
    void setLimitedDrag(bool limited);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Brought into the range; never wraps.
    void setValue(int value);

Q_SIGNALS:
    /// Emitted once for each change, whoever made it.
    void valueChanged(int value);
    void wheelPressed();
    /// The user let go of the wheel; the value is final.
    void wheelReleased();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    std::unique_ptr<QtThumbWheelPrivate> d_;
};
