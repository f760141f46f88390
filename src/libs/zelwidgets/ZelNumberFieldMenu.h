#pragma once

#include <functional>

class QAbstractSpinBox;
class QContextMenuEvent;
class QMenu;
class QWidget;

/// The context menus of bound fields and of the rows that hold one.
namespace ZelNumberFieldMenu {

using Reset = std::function<void()>;

/// The editing actions of the field, its steps and Reset. The whole text is selected first unless
/// a part of it is, so that copying and pasting are about the number.
QMenu *forField(QAbstractSpinBox *field, const Reset &reset);
/// Reset, and copy and paste of the field's number, for the parts of a row around the field.
QMenu *forRow(QWidget *row, QAbstractSpinBox *field, const Reset &reset);
/// Shows the menu where the event asks for it; it deletes itself when it closes.
void show(QMenu *menu, QContextMenuEvent *event);

/// The field's number as it is shown, without prefix and suffix, to the clipboard.
void copyNumber(QAbstractSpinBox *field);
/// The clipboard's text into the field as if the user had typed it and pressed Return; blanks and
/// line ends around it don't matter. A text that the field does not take changes nothing.
void pasteNumber(QAbstractSpinBox *field);

} // namespace ZelNumberFieldMenu
