#pragma once

class QAbstractSpinBox;

namespace ZelNumberDoubleClick {

/// Has a double click into the field select the whole number, without prefix and suffix; a line
/// edit by itself stops at the decimal point, so that what is typed next lands in the old number.
void install(QAbstractSpinBox *field);

} // namespace ZelNumberDoubleClick
