#pragma once

#include <cstddef>
#include <functional>
#include <ranges>

namespace quillon {

/// Mixes the hash of one more value into `seed`.
template <class T>
void hashInto(std::size_t& seed, const T& value);

namespace detail {
inline void mix(std::size_t& seed, std::size_t hash) {
    seed ^= hash + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}
} // namespace detail

template <class T>
void hashInto(std::size_t& seed, const T& value) {
    if constexpr (requires { std::hash<T>{}(value); }) {
        detail::mix(seed, std::hash<T>{}(value));
    } else {
        detail::mix(seed, std::ranges::size(value));
        for (const auto& element : value)
            hashInto(seed, element);
    }
}

/// One hash of several values, in their order.
template <class... T>
std::size_t hashOf(const T&... values) {
    std::size_t seed = 0;
    (hashInto(seed, values), ...);
    return seed;
}

} // namespace quillon
