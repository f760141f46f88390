#pragma once

#include <ZelCore/Quantity>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

#include <memory>

class ZelUnitManager;

/// A row of a panel: a caption, a field and a slider for one number of the caller's.
///
///     auto *row = new ZelDoubleSliderEdit(tr("Radius"), 0, 1, &light.radius, 0, 100, nullptr,
///                                         nullptr, false);
///     row->setAutoScaleRange(true, true);
///     connect(row, &ZelDoubleSliderEdit::valueUpdated, scene, &Scene::refresh);
///
/// The limits bound what can be typed. The range is the span of the slider; with
/// setAutoScaleRange() it follows the number within the limits, never while the user holds the
/// handle. What the program stores is bounded by neither.
///
/// Beside the field's own menu there is one with Reset, Copy and Paste on the rest of the row, and
/// a double click on the caption resets the number.
class ZELWIDGETS_EXPORT ZelDoubleSliderEdit : public QWidget
{
    Q_OBJECT

public:
    /// The number has to live as long as the row; with a null pointer the row keeps one itself, the
    /// slider's minimum at first. The widgets behind and before the field may be null; they become
    /// the row's, as the caption does. A horizontal row is a single line; else the slider is below.
    ZelDoubleSliderEdit(const QString &text, double sliderMinimum, double sliderMaximum,
                        float *value, float limitMinimum, float limitMaximum,
                        QWidget *trailingWidget, QWidget *leadingWidget, bool horizontal);
    /// Any widget may be the caption.
    ZelDoubleSliderEdit(QWidget *label, double sliderMinimum, double sliderMaximum, float *value,
                        float limitMinimum, float limitMaximum, QWidget *trailingWidget,
                        QWidget *leadingWidget, bool horizontal);
    ~ZelDoubleSliderEdit() override;

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
    /// Sets the text of the caption if it is a QLabel.
    void setText(const QString &text);
    /// Enables or disables slider and field; the caption stays as it is.
    void setSliderEditEnabled(bool enabled);
    /// Lets the slider's range follow the number, from its next change on. With growRange the range
    /// zooms in and out by simple numbers, else it is centred on the number.
    void setAutoScaleRange(bool autoScale, bool growRange);
    /// Emits nothing but beforeAdjustRange(), and leaves the number alone.
    void setLimits(float minimum, float maximum);
    /// Sets the slider's range as it is given, whatever the limits are.
    void setRange(double minimum, double maximum);
    void setRange(const ZelDoubleSliderEdit &other);
    /// Gives both rows the range that holds the ranges of both.
    void syncRange(ZelDoubleSliderEdit &other);
    /// The range that an adjustment would give the slider for this number. False if the current one
    /// would stay.
    bool computeAdjustedRange(double value, double &minimum, double &maximum) const;

public Q_SLOTS:
    /// Stores the number, also one outside of the limits, and shows it. Does nothing inside of
    /// valueUpdated().
    void updateValue(float val);
    /// Shows the number as it is now; the range may follow. Does nothing inside of valueUpdated().
    void updateValue();
    /// Gives the number the value that it had when the row was made. The handle stays until
    /// updateValue(); nothing is emitted.
    void resetValue();
    /// Adjusts the range now, unless the user holds the handle.
    void adjustSliderRange();
    /// Adjusts the range soon; calls until then count as one.
    void adjustSliderRangeDelayed();

Q_SIGNALS:
    /// The user changed the number, by the field or else by the slider.
    void valueUpdated(bool wasEdit);
    void sliderReleased();
    void sliderPressed();
    /// The range is about to be adjusted, also if it is not going to follow the number. Other
    /// ranges may be set here.
    void beforeAdjustRange();

protected:
    void create(double sliderMinimum, double sliderMaximum, float *value);
    void makeLayout();
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private Q_SLOTS:
    void editUpdated();
    void sliderUpdated();

private:
    void connectParts();

    std::unique_ptr<class ZelDoubleSliderEditPrivate> d_;
};
