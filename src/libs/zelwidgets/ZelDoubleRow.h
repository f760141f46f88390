#pragma once

#include "ZelDoubleEdit.h"
#include "ZelDoubleSlider.h"
#include "ZelRangeAdjustment.h"

#include <QPointer>
#include <QTimer>

class QContextMenuEvent;
class QWidget;

/// What the rows for a float do behind their operations: keeps the number, the field and the slider
/// in step and lets the slider's range follow the number.
class ZelDoubleRow
{
public:
    explicit ZelDoubleRow(QWidget *row);
    virtual ~ZelDoubleRow();

    /// Makes field and slider; their connections are the row's.
    void createParts(const ZelRangeAdjustment::Range &range, float *value);
    /// Ends the timer and the parts, which may be bound to a number in here.
    void release();

    void updateValue(float number);
    void updateValue();
    void resetValue();
    /// As resetValue(), by the user: the handle follows and the change is told.
    void resetByUser();
    void editUpdated();
    void sliderUpdated();

    ZelRangeAdjustment::Range range() const;
    void setRange(const ZelRangeAdjustment::Range &range);
    void unite(ZelDoubleRow &other);
    void setLimits(float minimum, float maximum);
    void setAutoScale(bool follows, bool grows);
    bool computeRange(double value, ZelRangeAdjustment::Range &result) const;
    void adjustRange(bool isHeld);
    void adjustRangeDelayed();

    void setEnabled(bool enabled);
    void setText(const QString &text);
    void describe();
    void showMenu(QContextMenuEvent *event);
    /// Resets on a double click on the caption.
    void watch(const QObject *watched, const QEvent *event);

    QPointer<QWidget> label;
    QPointer<ZelDoubleSlider> slider;
    QPointer<ZelDoubleEdit> edit;
    float limitMinimum = 0.0F;
    float limitMaximum = 0.0F;

protected:
    virtual void tellUpdated(bool wasEdit) = 0;
    virtual void tellBeforeAdjust() = 0;
    /// Runs the row's own adjustment, with its own test whether the user holds the handle.
    virtual void adjust() = 0;

private:
    void tellUpdatedOnce(bool wasEdit);

    QWidget *row_;
    float *value_ = nullptr;
    float ownValue_ = 0.0F;
    bool autoScale_ = false;
    bool grows_ = true;
    bool isUpdating_ = false;
    QTimer adjustTimer_;
};
