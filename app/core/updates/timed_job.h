#pragma once

#include <quillon/app/ports/background.h>
#include <quillon/app/ports/timers.h>

#include <functional>

namespace quillon {

/// One job at a time that is waited for only so long. Ends with its owner.
class TimedJob {
  public:
    /// Both outlive it.
    TimedJob(Background& background, Timers& timers) : m_background(background), m_timers(timers) {}

    /// Calls either the job's continuation or, when it takes longer than `limit`, `late`. By then none runs
    /// any more. A job that is still running is given up.
    void start(Background::Job job, Seconds limit, std::function<void()> late);
    bool isRunning() const { return static_cast<bool>(m_job); }

  private:
    void end();

    Background& m_background;
    Timers& m_timers;
    Subscription m_job;
    Subscription m_limit;
};

} // namespace quillon
