#pragma once

#include <array>
#include <utility>

/// Pairs of icon mode and state in an order of trial.
using IconModeOrder = std::array<std::pair<int, int>, 8>;

/// What serves for a mode and state that has no entry of its own; the wanted pair comes first.
IconModeOrder iconModeOrder(int mode, int state);
