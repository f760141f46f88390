#pragma once

/// What assistive technology sees of the title bar of a dock: its name, where the dock is, and its
/// context menu.
namespace ZelDockAccessible {

/// Makes title bars show themselves so; costs nothing but for the first time.
void installFactory();

} // namespace ZelDockAccessible
