#pragma once

namespace quillon {

/// When to try again what failed: with the first tick, two ticks after that, then four, and so on, a few
/// times. What a stopped application is asked waits for it in the bus, so it is asked ever more rarely and
/// not for ever.
class RetryPace {
  public:
    static constexpr int mostTries = 6;

    /// Whether it is time to try.
    bool tick() {
        if (m_tries == mostTries || --m_left > 0)
            return false;
        ++m_tries;
        m_left = 1 << m_tries;
        return true;
    }
    /// Begins with the first try again.
    void restart() { *this = {}; }

  private:
    int m_tries = 0;
    int m_left = 1; ///< ticks until the next try
};

} // namespace quillon
