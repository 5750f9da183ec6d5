#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <ranges>
#include <utility>

namespace quillon {

/// Mixes the hash of one more value into `seed`: of anything std::hash knows, and of instants, optionals,
/// pairs and ranges of such.
template <class T>
void hashInto(std::size_t& seed, const T& value);

namespace detail {

inline void mix(std::size_t& seed, std::size_t hash) {
    seed ^= hash + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

template <class Clock, class Duration>
void hashParts(std::size_t& seed, const std::chrono::time_point<Clock, Duration>& value) {
    hashInto(seed, value.time_since_epoch().count());
}

template <class T>
void hashParts(std::size_t& seed, const std::optional<T>& value) {
    hashInto(seed, value.has_value());
    if (value)
        hashInto(seed, *value);
}

template <class A, class B>
void hashParts(std::size_t& seed, const std::pair<A, B>& value) {
    hashInto(seed, value.first);
    hashInto(seed, value.second);
}

template <std::ranges::sized_range Range>
void hashParts(std::size_t& seed, const Range& range) {
    mix(seed, std::ranges::size(range));
    for (const auto& element : range)
        hashInto(seed, element);
}

} // namespace detail

template <class T>
void hashInto(std::size_t& seed, const T& value) {
    if constexpr (requires { std::hash<T>{}(value); })
        detail::mix(seed, std::hash<T>{}(value));
    else
        detail::hashParts(seed, value);
}

/// One hash of several values, in their order.
template <class... T>
std::size_t hashOf(const T&... values) {
    std::size_t seed = 0;
    (hashInto(seed, values), ...);
    return seed;
}

} // namespace quillon
