#pragma once

#include <QSocketNotifier>

#include <array>
#include <functional>
#include <memory>

namespace quillon {

/// Lets the program end in order when it is asked to by a signal (SIGTERM, SIGINT, SIGHUP) instead of at
/// once. Each signal is taken once: sent again, it ends the program whatever it is doing. One at a time, on
/// the thread of the Qt event loop.
class EndSignals {
  public:
    /// `asked` is called by the event loop, not by the signal. Where no pipe can be had, signals end the
    /// program as they do without this object.
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

  private:
    std::array<int, 2> m_pipe{-1, -1}; ///< from the signal to the event loop
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quillon
