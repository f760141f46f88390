#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class QDial;
class QDoubleSpinBox;

/// An angle in degrees: a dial and the field with its number.
///
/// The dial knows whole degrees of one turn; the angle itself may have decimals, of which the field
/// shows two, and may be larger. The mouse wheel turns either only while Control is held, with
/// Shift by larger steps.
class ZELWIDGETS_EXPORT ZelDialWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ getValue WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit ZelDialWidget(QSize const &dialSize, bool backward = false, QWidget *parent = nullptr);
    ~ZelDialWidget() override;

    /// The angle with all its decimals.
    double getValue() const { return value_; }
    /// A negative angle counts as the positive one that looks the same; not a number and the
    /// infinities are refused with a warning.
    void setValue(double value);
    /// The dial turns against the angle: it stands at 360 less the angle.
    void setBackward(bool backward);
    /// The dial goes round without an end, and the angle counts its full turns.
    void setContinuing(bool continuing);

Q_SIGNALS:
    /// Emitted once for each change, whoever made it.
    void valueChanged(double value);
    /// The user let go of the dial.
    void sliderReleased();

private Q_SLOTS:
    void onValueChanged(int value);
    void onEditingFinished();

private:
    void take(double value);
    void showOnDial();

    bool backward_;
    bool continuing_ = false;
    double value_ = 0;
    QDial *dial_;
    QDoubleSpinBox *field_;
};
