#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QList>
#include <QPointer>
#include <QWidget>

class QLabel;
class ZelIntegerEdit;
class ZelIntegerSlider;

/// A row of a panel for a whole number of the caller's that is one of a list, such as sizes of
/// textures. A number that isn't in the list gives way to the closest one, the lower of two.
///
/// A double click on the caption resets the number.
class ZELWIDGETS_EXPORT ZelSpecificIntegerSliderEdit : public QWidget
{
    Q_OBJECT

public:
    /// The values ascend; the slider starts at the entry with startIndex, the number has to live as
    /// long as the row and stays until it is updated. An empty list is told by a warning; the row
    /// then only offers 0.
    ZelSpecificIntegerSliderEdit(const QString &text, const QList<int> &values, int startIndex,
                                 int *value, int pageStep);
    ~ZelSpecificIntegerSliderEdit() override;

    void setSuffix(const QString &suffix);
    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Takes the entry that is closest to the number, and shows it.
    void updateValue();

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
    void clampToClosestValue();
    void takeSlider();
    void takeEdit();
    void resetByUser();

    QPointer<ZelIntegerSlider> slider_;
    QPointer<ZelIntegerEdit> edit_;
    QLabel *label_;
    QList<int> values_;
    int index_;
    int *value_;
};
