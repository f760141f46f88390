#pragma once

#include <ZelCore/Quantity>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

#include <memory>

class ZelUnitManager;

/// A row as ZelDoubleSliderEdit, with a panel for further editors under the slider that a click on
/// the caption opens and closes.
class ZELWIDGETS_EXPORT ZelDropDownDoubleSliderEdit : public QWidget
{
    Q_OBJECT

public:
    /// The number has to live as long as the row; with a null pointer the row keeps one itself, the
    /// slider's minimum at first. The widget behind the caption may be null; it becomes the row's.
    /// Without dropDown there is no panel.
    ZelDropDownDoubleSliderEdit(const QString &text, double sliderMinimum, double sliderMaximum,
                                float *value, float limitMinimum, float limitMaximum,
                                QWidget *extraWidget, bool dropDown);
    ~ZelDropDownDoubleSliderEdit() override;

    float value() const;
    double sliderMinimum() const;
    double sliderMaximum() const;
    bool isSliderDown() const;

    /// Whether the number follows the handle while it is dragged, as it does at first.
    void setTracking(bool enable);
    void setSuffix(const QString &suffix);
    /// The number of decimals of the field; takes effect with the next text.
    void setDecimals(int decimals);
    void setDecimalsIsAbsolute(bool absolute);
    void setQuantity(Quantity quantity);
    /// The manager isn't owned.
    void setUnit(const ZelUnitManager *manager);
    /// Enables or disables slider and field; caption and panel stay as they are.
    void setSliderEditEnabled(bool enabled);
    /// Lets the slider's range follow the number, from its next change on. With growRange the range
    /// zooms in and out by simple numbers, else it is centred on the number.
    void setAutoScaleRange(bool autoScale, bool growRange);
    /// Emits nothing but beforeAdjustRange(), and leaves the number alone.
    void setLimits(float minimum, float maximum);
    /// Sets the slider's range as it is given, whatever the limits are.
    void setRange(double minimum, double maximum);
    void setRange(const ZelDropDownDoubleSliderEdit &other);
    /// Gives both rows the range that holds the ranges of both.
    void syncRange(ZelDropDownDoubleSliderEdit &other);
    /// The range that an adjustment would give the slider for this number. False if the current one
    /// would stay.
    bool computeAdjustedRange(double value, double &minimum, double &maximum) const;
    /// Adds to the panel; only for rows that have one.
    void addWidget(QWidget *widget, int stretch, Qt::Alignment alignment);

public Q_SLOTS:
    /// Stores the number, also one outside of the limits, and shows it. Does nothing inside of
    /// valueUpdated().
    void updateValue(float val);
    /// Shows the number as it is now; the range may follow. Does nothing inside of valueUpdated().
    void updateValue();
    /// Gives the number the value that it had when the row was made. The handle stays until
    /// updateValue(); nothing is emitted.
    void resetValue();
    /// Adjusts the range now, unless the user holds the handle or, if it isn't forced, any left
    /// mouse button.
    void adjustSliderRange(bool force);
    void adjustSliderRange();
    /// Adjusts the range soon; calls until then count as one.
    void adjustSliderRangeDelayed();
    /// Opens or closes the panel.
    void dropDownToggle();

Q_SIGNALS:
    /// The user changed the number, by the field or else by the slider.
    void valueUpdated(bool wasEdit);
    void sliderReleased();
    void sliderPressed();
    /// The range is about to be adjusted, also if it is not going to follow the number. Other
    /// ranges may be set here.
    void beforeAdjustRange();
    /// The panel was opened or closed.
    void widgetVisible(bool visible);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private Q_SLOTS:
    void editUpdated();
    void sliderUpdated();

private:
    void makeLayout(QWidget *extraWidget);
    void connectParts();

    std::unique_ptr<class ZelDropDownDoubleSliderEditPrivate> d_;
};
