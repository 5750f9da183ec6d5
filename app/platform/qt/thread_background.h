#pragma once

#include <quillon/app/ports/background.h>

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <stop_token>

namespace quillon {

/// Jobs on a few threads of their own; continuations on the thread that made this object, which runs a Qt
/// event loop.
class ThreadBackground final : public Background {
  public:
    ThreadBackground();
    ~ThreadBackground() override;

    Subscription run(Job job) override;

    /// Asks the jobs to stop and waits for them; later jobs are dropped. For whoever owns what jobs use and
    /// ends before this object does.
    void finish();

  private:
    std::stop_source m_stop;
    std::unique_ptr<QObject> m_mainThread;
    QThreadPool m_threads;
};

} // namespace quillon
