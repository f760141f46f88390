#pragma once

#include <span>

namespace orv {

/// A view of values that lie one behind the other; it owns none of them.
template <typename T>
using Span = std::span<T>;

} // namespace orv
