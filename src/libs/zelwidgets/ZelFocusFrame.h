#pragma once

class QWidget;

namespace ZelFocusFrame {

/// Marks a widget that paints itself as the one with the focus: a thin frame along its edge, in the
/// highlight colour that its palette has at this paint.
void paint(QWidget *widget);

} // namespace ZelFocusFrame
