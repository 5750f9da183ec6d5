#pragma once

#include <QObject>

#include <chrono>
#include <optional>

namespace quillon {

/// Measures how long the main thread is ever busy without returning to its event loop, which is how long a
/// key or a click may have to wait.
class StallMeter final : public QObject {
  public:
    using Duration = std::chrono::steady_clock::duration;

    /// Begins to measure, from zero.
    void start();
    /// The longest time so far.
    Duration longest() const { return m_longest; }

  private:
    void woke();
    void goesToSleep();

    std::optional<std::chrono::steady_clock::time_point> m_awakeSince;
    Duration m_longest{};
    bool m_connected = false;
};

} // namespace quillon
