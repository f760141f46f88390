#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QSlider>

/// A horizontal slider for a whole number of the caller's. A click on the groove puts the handle
/// there; the wheel turns with Control alone.
///
/// The number stays the caller's and has to live as long as the slider. Only what the user does
/// writes it.
class ZELWIDGETS_EXPORT ZelIntegerSlider : public QSlider
{
    Q_OBJECT
    /// The colours of the painted groove; the style sheet sets them.
    Q_PROPERTY(QColor grooveColorBackground MEMBER grooveColorBackground_)
    Q_PROPERTY(QColor grooveColorFill MEMBER grooveColorFill_)
    Q_PROPERTY(QColor grooveColorBackgroundDisabled MEMBER grooveColorBackgroundDisabled_)
    Q_PROPERTY(QColor grooveColorFillDisabled MEMBER grooveColorFillDisabled_)

public:
    ZelIntegerSlider(QWidget *parent, int minimum, int maximum, int *value);
    ~ZelIntegerSlider() override;

    /// Six widths of an "M" by the height of the font.
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Shows the number; nothing is written, valueUpdated() isn't emitted.
    void updateValue();
    /// Stores what the number was at construction; updateValue() shows it.
    void resetValue();
    /// One single step, within the range, as if the user had moved the slider.
    void singleStepDecrease();
    void singleStepIncrease();

Q_SIGNALS:
    /// The user moved the slider; the number is already written. A click on the groove emits it
    /// once, and once more if the number changed.
    void valueUpdated();
    /// The handle has stayed at the maximum for half a second after a turn of the wheel.
    void scrolledToMax();
    void signalFocusOut();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    void myValueChanged(int position);
    void slotDelayedSliderScrollToMax();

private:
    float part() const;

    int *value_;
    int initialValue_;
    bool scrollToMaxPending_ = false;
    QColor grooveColorBackground_;
    QColor grooveColorFill_;
    QColor grooveColorBackgroundDisabled_;
    QColor grooveColorFillDisabled_;
    bool isShowing_ = false;
};
