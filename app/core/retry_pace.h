#pragma once

#include <algorithm>

namespace quillon {

/// When to try again what failed: with the first tick, two ticks after that, then four, and so on. What a
/// stopped application is asked waits for it in the bus, so it is asked ever more rarely.
class RetryPace {
  public:
    /// Ticks; a longer pause would be taken for none trying any more.
    static constexpr int longestPause = 32;

    /// Whether it is time to try.
    bool tick() {
        if (--m_left > 0)
            return false;
        m_left = m_pause = std::min(2 * m_pause, longestPause);
        return true;
    }
    /// Begins with the first try again.
    void restart() { *this = {}; }

  private:
    int m_pause = 1; ///< that was kept before the next try
    int m_left = 1;
};

} // namespace quillon
