#pragma once

/// The arithmetic of a width and a height in a fixed ratio, without widgets. An aspect is height by
/// width.
namespace ZelAspect {

/// Infinite or not a number where the width is zero.
double ofSize(float width, float height);
/// Whether two aspects differ by rounding alone; to zero nothing but zero is close.
bool isClose(double first, double second);
float heightFor(float width, double aspect);
float widthFor(float height, double aspect);

} // namespace ZelAspect
