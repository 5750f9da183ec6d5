#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>

namespace quillon {

/// Decides which of many changed properties somebody is told of at once: the first few of an interval; of the
/// others one of each property at its end.
class FloodGate {
  public:
    /// About what a desktop changes at once when a window or a panel comes or goes.
    static constexpr int mostInAnInterval = 4;
    /// How many properties wait for the interval's end; what would be beyond is told at once.
    static constexpr std::size_t mostHeld = 64;

    /// Whether a change of `property` is told now; else it waits.
    bool passes(std::uint32_t property) {
        if (m_passed >= mostInAnInterval && (m_held.contains(property) || m_held.size() < mostHeld)) {
            m_held.insert(property);
            return false;
        }
        ++m_passed;
        return true;
    }

    /// Ends the interval: the properties that waited, each once.
    std::set<std::uint32_t> endInterval() {
        m_passed = 0;
        return std::exchange(m_held, {});
    }

  private:
    int m_passed = 0;
    std::set<std::uint32_t> m_held;
};

} // namespace quillon
