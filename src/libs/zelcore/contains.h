#pragma once

#include <algorithm>
#include <iterator>

namespace orv {

/// Whether a container holds the value; with maps and hashes, whether it holds the key.
template <typename Container, typename Value>
bool contains(const Container &container, const Value &value)
{
    if constexpr (requires { container.contains(value); })
        return container.contains(value);
    else
        return std::find(std::begin(container), std::end(container), value) != std::end(container);
}

} // namespace orv
