#pragma once

#include <quillon/kit/base/checked.h>
#include <quillon/kit/menu/menu_entry.h>
#include <quillon/kit/records/usage.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

/// Which commands a practice round asks for.
namespace quillon::PracticeDeck {

/// Entry ids.
using Ids = std::set<std::string, std::less<>>;

/// A generator whose every number is 64 random bits: SeededGenerator, std::mt19937_64.
template <class Generator>
concept RandomSource = std::uniform_random_bit_generator<Generator> && std::is_same_v<
    typename Generator::result_type, std::uint64_t> && Generator::max()
== std::numeric_limits<std::uint64_t>::max();

/// The entries worth practising, in their order: those with ⌃, ⌥ or ⌘ that do not belong to the system.
std::vector<MenuEntry> practicable(std::span<const MenuEntry> entries);

namespace detail {
std::vector<MenuEntry> draw(
    std::span<const MenuEntry> entries, const UsageRecords& usage, const Ids& pinned, Count count,
    const std::function<std::uint64_t()>& random);
} // namespace detail

/// Up to `count` practicable entries, each at most once, in the order of the draw; each draw picks one of
/// those left with the chance of its weight (PracticeWeighting). `generator` gives one number per draw, so
/// the same numbers give the same round. None for a count of 0 or less.
template <RandomSource Generator>
std::vector<MenuEntry> round(
    std::span<const MenuEntry> entries, const UsageRecords& usage, const Ids& pinned, Count count,
    Generator& generator) {
    return detail::draw(entries, usage, pinned, count, [&generator] { return generator(); });
}

} // namespace quillon::PracticeDeck
