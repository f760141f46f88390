#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QSlider>

/// A horizontal slider for a number of the caller's: its thousand steps lie evenly between two real
/// numbers. A click on the groove puts the handle there; the wheel turns only with Control.
///
/// The number stays the caller's and has to live as long as the slider. Only what the user does
/// writes it; a number outside of the range is shown at an end and kept.
///
///     auto *slider = new ZelDoubleSlider(panel, 0, 1, &light.strength);
///     connect(slider, &ZelDoubleSlider::valueUpdated, scene, &Scene::refresh);
class ZELWIDGETS_EXPORT ZelDoubleSlider : public QSlider
{
    Q_OBJECT
    /// The colours of the painted groove; the style sheet sets them.
    Q_PROPERTY(QColor grooveColorBackground MEMBER grooveColorBackground_)
    Q_PROPERTY(QColor grooveColorFill MEMBER grooveColorFill_)
    Q_PROPERTY(QColor grooveColorBackgroundDisabled MEMBER grooveColorBackgroundDisabled_)
    Q_PROPERTY(QColor grooveColorFillDisabled MEMBER grooveColorFillDisabled_)

public:
    /// A number that isn't finite is set to zero, with a message. While minimum is below zero the
    /// groove is filled from its centre.
    ZelDoubleSlider(QWidget *parent, double minimum, double maximum, float *value);
    ~ZelDoubleSlider() override;

    double minVal() const { return minimum_; }
    double maxVal() const { return maximum_; }
    /// Stores the number, brought into the range; no signal.
    void setFloatValue(float value);
    /// The number stays as it is, also if it lies outside.
    void setRange(double minimum, double maximum);

public Q_SLOTS:
    /// Shows the number; nothing is written, valueUpdated() isn't emitted.
    void updateValue();
    /// Stores what the number was at construction; updateValue() shows it.
    void resetValue();

Q_SIGNALS:
    /// The user moved the slider; the number is already written.
    void valueUpdated();
    /// A turn of the wheel left the handle at an end.
    void scrolledToMinOrMax();
    void signalFocusOut();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    void myValueChanged(int position);

private:
    void turn(QWheelEvent *event);

    float *value_;
    float initialValue_;
    double minimum_;
    double maximum_;
    QColor grooveColorBackground_;
    QColor grooveColorFill_;
    QColor grooveColorBackgroundDisabled_;
    QColor grooveColorFillDisabled_;
    bool fillsFromCentre_ = false;
    bool isShowing_ = false;
};
