#pragma once

#include <ZelCore/ZelTime>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QWidget>

class QTime;
class ZelDoubleSlider;
class ZelTimeEdit;

/// A row of a panel for a time of day, noon at first: a caption and a field over a slider. The row
/// keeps the time itself.
///
/// A double click on the caption sets it to noon.
class ZELWIDGETS_EXPORT ZelTimeSliderEdit : public QWidget
{
    Q_OBJECT

public:
    /// The widget behind the field may be null; it becomes the row's.
    ZelTimeSliderEdit(const QString &text, QWidget *extraWidget);
    /// Any widget may be the caption; it becomes the row's.
    ZelTimeSliderEdit(QWidget *label, QWidget *extraWidget);
    ~ZelTimeSliderEdit() override;

    ZelTime time() const;
    float hours() const;

    void setTime(const ZelTime &time);
    /// Sets the time to the milliseconds of this one within its second, just after midnight.
    void setTime(const QTime &time);
    void setHour(float hours);
    /// What slider and field offer; the time stays as it is.
    void setRange(const ZelTime &minimum, const ZelTime &maximum);
    void setRangeHours(float minimum, float maximum);
    /// As QDateTimeEdit::setDisplayFormat().
    void setDisplayFormat(const QString &format);
    /// Whether the time follows the handle while it is dragged, as it does at first.
    void setTracking(bool enable);

public Q_SLOTS:
    /// Sets the time in seconds from midnight, brought into the slider's range. Does nothing inside
    /// of valueUpdated().
    void updateValue(float val);
    /// Shows the time. Does nothing inside of valueUpdated().
    void updateValue();
    /// Sets the time to noon; the handle stays until updateValue(), nothing is emitted.
    void resetValue();

Q_SIGNALS:
    /// The user changed the time.
    void valueUpdated();
    void sliderReleased();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private Q_SLOTS:
    void editUpdated();
    void sliderUpdated();

private:
    void create();
    void makeLayout();
    void showInEdit();
    void tellUpdated();
    void resetByUser();

    QPointer<ZelDoubleSlider> slider_;
    QPointer<ZelTimeEdit> edit_;
    QPointer<QWidget> label_;
    QPointer<QWidget> extraWidget_;
    bool updating_ = false;
    float seconds_ = 43200.0F;
};
