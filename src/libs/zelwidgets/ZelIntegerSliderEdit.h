#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QWidget>

class ZelIntegerEdit;
class ZelIntegerSlider;

/// A row of a panel for a whole number of the caller's: a caption and a field over a slider.
///
/// The slider's maximum is soft: a handle that stays there lets it grow by a tenth of the number,
/// up to what the field takes. A double click on the caption resets the number.
class ZELWIDGETS_EXPORT ZelIntegerSliderEdit : public QWidget
{
    Q_OBJECT

public:
    /// The number has to live as long as the row. A number above the slider's maximum raises that
    /// at once.
    ZelIntegerSliderEdit(const QString &text, int sliderMinimum, int sliderMaximum, int *value,
                         int editMinimum, int editMaximum);
    /// Any widget may be the caption; it becomes the row's.
    ZelIntegerSliderEdit(QWidget *label, int sliderMinimum, int sliderMaximum, int *value,
                         int editMinimum, int editMaximum);
    /// A row whose slider spans all that the field takes.
    static ZelIntegerSliderEdit *createFixed(const QString &text, int minimum, int maximum,
                                             int *value);
    static ZelIntegerSliderEdit *createFixed(QWidget *label, int minimum, int maximum, int *value);
    ~ZelIntegerSliderEdit() override;

    ZelIntegerSlider *sliderWdg() const;

    /// Sets the text of the caption if it is a QLabel.
    void setLabel(const QString &text);
    /// Sets the slider's range; the number stays as it is.
    void setRange(int minimum, int maximum);
    void setSuffix(const QString &suffix);
    /// Whether valueUpdated() is emitted while the handle is dragged, as it is at first; else on
    /// its release. The number follows the handle either way.
    void setSliderTracking(bool enable);
    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Shows the number as it is now.
    void updateValue();
    /// Gives the number the value that it had when the row was made; updateValue() shows it.
    void resetValue();
    /// Lets the slider's maximum grow if the handle stands there.
    void slotUpdateSliderMax();
    /// The same after a moment, once for each call.
    void slotMaxUpdateDelayed();

Q_SIGNALS:
    /// The user changed the number.
    void valueUpdated();
    void sliderReleased();
    /// The user changed the number in the field; valueUpdated() came before.
    void editUpdated();
    /// The field's editing is finished, by Return or by leaving it.
    void returnPressed();
    /// The row was hidden, or is not hidden any more.
    void visibleStateChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void connectParts();
    void resetByUser();

    int *value_;
    QPointer<ZelIntegerSlider> slider_;
    QPointer<ZelIntegerEdit> edit_;
    QPointer<QWidget> label_;
    bool sliderTracking_ = true;
};
