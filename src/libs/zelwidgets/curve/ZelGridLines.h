#pragma once

#include <vector>

/// Where the lines of a grid lie along one axis, apart from scenes and views.
namespace ZelGridLines {

/// A grid has no more lines than this along an axis; of more, every second, third ... is left.
constexpr int most = 100000;

/// The smallest whole multiple of the least step that is at least minViewSize pixels wide on
/// screen, where sceneSize shows as viewSize pixels. All arguments are positive.
double spacing(double sceneSize, double viewSize, double minSceneSize, double minViewSize);

/// The multiples of the spacing within from and to, both included, as far as a float can tell them.
/// None if the ends or the spacing aren't finite, or the spacing isn't positive.
std::vector<float> positions(double from, double to, double spacing);

} // namespace ZelGridLines
