#pragma once

#include <quillon/app/ports/timers.h>

#include <functional>
#include <utility>

namespace quillon {

/// Saves once after a burst of changes. Changes that never pause for so long are saved when they do, or with
/// the end of the program.
class DelayedSave {
  public:
    /// How long after the last change.
    static constexpr Seconds delay{1.0};

    /// `timers` outlive this.
    DelayedSave(Timers& timers, std::function<void()> save) : m_timers(timers), m_save(std::move(save)) {}

    /// Something changed.
    void schedule();
    /// Saves at once if something changed since the last save.
    void flush();
    /// What changed so far is not worth saving any more.
    void cancel() { m_pending.reset(); }

  private:
    Timers& m_timers;
    std::function<void()> m_save;
    Subscription m_pending;
};

} // namespace quillon
