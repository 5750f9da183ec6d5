#include "thread_background.h"

#include <QMetaObject>

#include <utility>

namespace quillon {

namespace {

/// Enough for several applications that do not answer, and beside them for what must not wait for any: saves
/// and the menus that are in use.
constexpr int maxThreads = 8;

} // namespace

ThreadBackground::ThreadBackground(std::function<void()> whenIdle)
    : m_whenIdle(std::move(whenIdle)), m_mainThread(std::make_unique<QObject>()) {
    m_threads.setMaxThreadCount(maxThreads);
}

ThreadBackground::~ThreadBackground() {
    finish();
}

void ThreadBackground::finish() {
    m_stop.request_stop();
    m_threads.waitForDone();
}

Subscription ThreadBackground::run(Job job) {
    const auto ended = std::make_shared<std::stop_source>();
    m_threads.start([this, job = std::move(job), ended]() mutable {
        ++m_running;
        perform(std::exchange(job, {}), ended);
        if (--m_running == 0 && m_whenIdle)
            m_whenIdle();
    });
    return Subscription([ended] { ended->request_stop(); });
}

void ThreadBackground::perform(const Job& job, const std::shared_ptr<std::stop_source>& ended) {
    const std::stop_callback finishing(m_stop.get_token(), [&ended] { ended->request_stop(); });
    if (ended->stop_requested())
        return;
    Continuation continuation = job(ended->get_token());
    if (!continuation || ended->stop_requested())
        return;
    const auto unlessEnded = [continuation = std::move(continuation), ended] {
        if (!ended->stop_requested())
            continuation();
    };
    QMetaObject::invokeMethod(m_mainThread.get(), unlessEnded, Qt::QueuedConnection);
}

} // namespace quillon
