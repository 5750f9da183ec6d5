#pragma once

#include <quillon/app/ports/background.h>
#include <quillon/kit/base/subscription.h>

#include <functional>
#include <memory>

namespace quillon {

/// Writes to one place, off the main thread: one after the other, and of those that wait only the newest,
/// which stands for all before it. To be used on the main thread alone.
class BackgroundWrites {
  public:
    /// Called on any thread, but never beside another.
    using Write = std::function<void()>;

    /// `background` outlives this. When this ends, a write that is under way goes on to its end and one that
    /// waits is dropped.
    explicit BackgroundWrites(Background& background);
    ~BackgroundWrites();
    BackgroundWrites(const BackgroundWrites&) = delete;
    BackgroundWrites& operator=(const BackgroundWrites&) = delete;

    /// Has it done soon, in place of one that waits.
    void put(Write write);
    /// Waits for the write that is under way and does here the one that waits. After it, nothing that was put
    /// is left to be done.
    void finish();
    /// The same with this write in place of the one that waits.
    void finishWith(Write write);

  private:
    class Line;

    void start();
    void ended();

    Background& m_background;
    std::shared_ptr<Line> m_line; ///< shared with the job, which may live longer than this
    Subscription m_job;
};

} // namespace quillon
