#pragma once

#include <quillon/kit/base/subscription.h>

#include <functional>
#include <stop_token>

namespace quillon {

/// Work that may wait for other processes and so must not run on the main thread.
class Background {
  public:
    /// What is left to do on the main thread, with the job's result in it. May be empty.
    using Continuation = std::function<void()>;
    /// Runs off the main thread. `stop` is requested when nobody waits for the result any more: give up soon.
    using Job = std::function<Continuation(std::stop_token stop)>;

    /// Ends after every job: asks them to stop, waits for them and drops their continuations.
    virtual ~Background() = default;

    /// Starts `job` soon, beside those already running, and calls its continuation on the main thread. Both
    /// only while the handle lives: when it ends, a job that has not begun is dropped, one that runs is asked
    /// to stop, and no continuation is called any more.
    virtual Subscription run(Job job) = 0;
};

} // namespace quillon
