#include "thread_background.h"

#include <QMetaObject>

#include <utility>

namespace quillon {

namespace {

/// Enough for several applications that do not answer beside one that does.
constexpr int maxThreads = 6;

} // namespace

ThreadBackground::ThreadBackground() : m_mainThread(std::make_unique<QObject>()) {
    m_threads.setMaxThreadCount(maxThreads);
}

ThreadBackground::~ThreadBackground() {
    finish();
}

void ThreadBackground::finish() {
    m_stop.request_stop();
    m_threads.waitForDone();
}

void ThreadBackground::run(Job job) {
    m_threads.start([this, job = std::move(job)] {
        if (m_stop.stop_requested())
            return;
        Continuation continuation = job(m_stop.get_token());
        if (!continuation || m_stop.stop_requested())
            return;
        QMetaObject::invokeMethod(m_mainThread.get(), std::move(continuation), Qt::QueuedConnection);
    });
}

} // namespace quillon
