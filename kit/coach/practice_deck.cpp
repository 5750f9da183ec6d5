#include "practice_deck.h"

#include "practice_weighting.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace quillon::PracticeDeck {

namespace {

struct Candidate {
    MenuEntry entry;
    double weight;
};

bool isPracticable(const MenuEntry& entry) {
    constexpr Modifiers practised{Modifiers::control, Modifiers::option, Modifiers::command};
    return !entry.shortcut.modifiers.isDisjoint(practised) && !entry.isSystemReserved();
}

std::vector<Candidate>
weighed(std::span<const MenuEntry> entries, const UsageRecords& usage, const Ids& pinned) {
    std::vector<Candidate> pool;
    for (MenuEntry& entry : practicable(entries)) {
        const std::string id = entry.id();
        const auto found = usage.find(id);
        const auto record = found == usage.end() ? std::nullopt : std::optional(found->second);
        pool.push_back({std::move(entry), PracticeWeighting::weight(record, pinned.contains(id))});
    }
    return pool;
}

/// A number of the half-open range from 0 to `end`, made of the low 53 bits of `random`.
double uniform(std::uint64_t random, double end) {
    const double unit = static_cast<double>(random & ((std::uint64_t{1} << 53) - 1)) * 0x1p-53;
    const double drawn = unit * end;
    return drawn == end ? std::nextafter(end, 0.0) : drawn;
}

/// The position of the candidate on which a draw from a pool that is not empty falls.
std::size_t pick(const std::vector<Candidate>& pool, std::uint64_t random) {
    double total = 0;
    for (const Candidate& candidate : pool)
        total += candidate.weight;
    double left = uniform(random, total);
    for (std::size_t i = 0; i < pool.size(); ++i) {
        if (left < pool[i].weight)
            return i;
        left -= pool[i].weight;
    }
    // Subtracting weight by weight can round to a hair more than is left.
    return pool.size() - 1;
}

} // namespace

std::vector<MenuEntry> practicable(std::span<const MenuEntry> entries) {
    std::vector<MenuEntry> kept;
    std::ranges::copy_if(entries, std::back_inserter(kept), isPracticable);
    return kept;
}

std::vector<MenuEntry> detail::draw(
    std::span<const MenuEntry> entries, const UsageRecords& usage, const Ids& pinned, Count count,
    const std::function<std::uint64_t()>& random) {
    std::vector<MenuEntry> drawn;
    if (count <= 0)
        return drawn;
    std::vector<Candidate> pool = weighed(entries, usage, pinned);
    while (std::cmp_less(drawn.size(), count) && !pool.empty()) {
        const auto picked = pool.begin() + static_cast<std::ptrdiff_t>(pick(pool, random()));
        drawn.push_back(std::move(picked->entry));
        pool.erase(picked);
    }
    return drawn;
}

} // namespace quillon::PracticeDeck
