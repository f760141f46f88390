#pragma once

#include <QString>

class QAbstractSpinBox;
class QBoxLayout;
class QEvent;
class QHBoxLayout;
class QObject;
class QSlider;
class QWidget;

/// What the rows of a panel have in common: a caption, a field and a slider for one number.
namespace ZelSliderRow {

/// As wide as there is room, as high as needed.
void expandSideways(QWidget *row);
/// A box without margins and spacing.
QBoxLayout *installColumn(QWidget *row);
/// A line without margins, at the end of the column.
QHBoxLayout *addLine(QBoxLayout *column);
/// Caption and field in a line, the slider under it.
void layOut(QWidget *row, QWidget *caption, QWidget *field, QSlider *slider);
/// A slider that shrinks to a readable width and that the Tab key passes by.
void prepareSlider(QSlider *slider);

/// Tells assistive technology the caption's text as name of field and slider, and the field's text
/// as value of the slider.
void describe(const QWidget *caption, QAbstractSpinBox *field, QSlider *slider);
/// Sets the text of a caption that is a label.
void setCaption(QWidget *caption, const QString &text);
/// Whether the event is the user's double click on the caption, which resets the row. Captions
/// that take the focus keep their double clicks.
bool isResetClick(const QWidget *caption, const QObject *watched, const QEvent *event);

} // namespace ZelSliderRow
