#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class ZelIntegerSlider;
class ZelToolButton;

/// The zoom bar of an icon list: a slider for a whole number of the caller's between a button that
/// makes it smaller and one that makes it larger, by single steps.
class ZELWIDGETS_EXPORT ZelIntSliderWithIcons : public QWidget
{
    Q_OBJECT

public:
    /// The number has to live as long as the bar.
    ZelIntSliderWithIcons(QWidget *parent, int minimum, int maximum, int *value);

    ZelIntegerSlider *slider() const;
    ZelToolButton *zoomInButton() const;
    ZelToolButton *zoomOutButton() const;
    int minimum() const;
    int maximum() const;
    int value() const;
    /// The part of the way from minimum to maximum, 0 to 1; 0 if they are the same.
    float valuePercentage() const;

    /// Moves the slider as the user would: the number is written and valueUpdated() emitted.
    void setValue(int value);
    /// The same for a part of the way, 0 to 1.
    void setValuePercentage(float part);
    void setRange(int minimum, int maximum);
    void setPageStep(int step);
    void setSingleStep(int step);
    /// Shows the number as it is now.
    void updateValue();

Q_SIGNALS:
    void valueChanged(int value);
    void rangeChanged(int minimum, int maximum);
    /// The number is written.
    void valueUpdated();
    /// The handle has stayed at the maximum for half a second after a turn of the wheel.
    void scrolledToMax();
    void signalFocusOut();

private:
    ZelIntegerSlider *slider_;
    ZelToolButton *zoomInButton_;
    ZelToolButton *zoomOutButton_;
};
