#pragma once

#include <quillon/app/ports/background.h>

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>

namespace quillon {

/// Jobs on a few threads of their own; continuations on the thread that made this object, which runs a Qt
/// event loop.
class ThreadBackground final : public Background {
  public:
    /// `whenIdle` is called on a job's thread when it was the last that ran; no job waits for it.
    explicit ThreadBackground(std::function<void()> whenIdle = {});
    ~ThreadBackground() override;

    Subscription run(Job job) override;

    /// Asks the jobs to stop and waits for them; later jobs are dropped. For whoever owns what jobs use and
    /// ends before this object does.
    void finish();

  private:
    void perform(const Job& job, const std::shared_ptr<std::stop_source>& ended);

    std::function<void()> m_whenIdle;
    std::stop_source m_stop;
    std::unique_ptr<QObject> m_mainThread;
    std::atomic<int> m_running = 0;
    QThreadPool m_threads;
};

} // namespace quillon
