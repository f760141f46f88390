#pragma once

/// What assistive technology sees of the swatch list: its colours with their names and numbers,
/// although the rows have no texts.
namespace ZelSwatchAccessible {

/// Makes the lists show themselves so; costs nothing but for the first time.
void installFactory();

} // namespace ZelSwatchAccessible
