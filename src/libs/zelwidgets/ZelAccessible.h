#pragma once

/// What assistive technology sees of the controls of the library that paint themselves, have no
/// text or are pressed without being buttons: the name is the accessible name, a label's
/// text, the shown text or the tool tip, whichever is there first, and the actions go the way of
/// the click.
namespace ZelAccessible {

/// Makes the controls show themselves so; costs nothing but for the first time.
void installFactory();

} // namespace ZelAccessible
