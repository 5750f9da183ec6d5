#pragma once

#include <quillon/app/ports/background.h>

#include <cstddef>
#include <deque>
#include <stop_token>

namespace quillon {

/// Jobs that wait until they are run by hand, on the calling thread.
class FakeBackground final : public Background {
  public:
    ~FakeBackground() override;

    Subscription run(Job job) override;

    /// Jobs that have not begun and whose handles live.
    std::size_t waiting() const;
    /// Jobs that are done, whose continuations have not been called and whose handles live.
    std::size_t finished() const;

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
    /// A job or a continuation and whether its handle has ended.
    template <class Work>
    struct Pending {
        Work work;
        std::stop_source ended;
    };

    Pending<Continuation> work(Pending<Job> job);
    static void deliver(const Pending<Continuation>& continuation);
    void dropEnded();

    std::stop_source m_stop;
    std::deque<Pending<Job>> m_jobs;
    std::deque<Pending<Continuation>> m_continuations;
};

} // namespace quillon
