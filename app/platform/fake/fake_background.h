#pragma once

#include <quillon/app/ports/background.h>

#include <cstddef>
#include <deque>

namespace quillon {

/// Jobs that wait until they are run by hand, on the calling thread.
class FakeBackground final : public Background {
  public:
    ~FakeBackground() override;

    void run(Job job) override;

    /// Jobs that have not begun.
    std::size_t waiting() const { return m_jobs.size(); }
    /// Jobs that are done and whose continuations have not been called.
    std::size_t finished() const { return m_continuations.size(); }

    /// Does the oldest waiting job and keeps its continuation back; false when none waits.
    bool workNext();
    /// Calls the oldest continuation that was kept back; false when there is none.
    bool deliverNext();
    /// Does the oldest waiting job and calls its continuation at once; false when none waits.
    bool runNext();
    /// The same with the newest waiting job: a late start that overtakes the others.
    bool runLast();
    /// Delivers what was kept back, then runs jobs until none waits, those that are added meanwhile too.
    void runAll();
    /// Asks the jobs to stop, as the end of the program does.
    void requestStop() { m_stop.request_stop(); }

  private:
    void finish(const Job& job);

    std::stop_source m_stop;
    std::deque<Job> m_jobs;
    std::deque<Continuation> m_continuations;
};

} // namespace quillon
