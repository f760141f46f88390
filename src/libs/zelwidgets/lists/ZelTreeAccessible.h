#pragma once

/// What assistive technology sees of trees whose rows have icons: Qt's own picture of the tree, and
/// behind its cells the icons of the current row, each with its state and the click on it.
namespace ZelTreeAccessible {

/// Makes the trees show themselves so; costs nothing but for the first time.
void installFactory();

} // namespace ZelTreeAccessible
