#pragma once

#include <QObject>

#include <atomic>
#include <chrono>
#include <thread>

namespace quillon {

/// Measures how long a key or a click may have to wait for the main thread: a thread of its own sends it a
/// message every millisecond and sees when it arrives. Only for measuring; costs wake-ups.
class StallMeter final : public QObject {
  public:
    using Duration = std::chrono::steady_clock::duration;

    ~StallMeter() override;

    /// Begins to measure, from zero.
    void start();
    /// The longest wait so far, to about a millisecond.
    Duration longest() const { return m_longest; }

  private:
    void ping();

    std::atomic<bool> m_answered = true;
    Duration m_longest{};
    std::jthread m_sender;
};

} // namespace quillon
