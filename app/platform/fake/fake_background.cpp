#include "fake_background.h"

#include <utility>

namespace quillon {

namespace {

template <class T>
T takeFirst(std::deque<T>& queue) {
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

} // namespace

FakeBackground::~FakeBackground() {
    m_stop.request_stop();
}

void FakeBackground::run(Job job) {
    m_jobs.push_back(std::move(job));
}

bool FakeBackground::workNext() {
    if (m_jobs.empty())
        return false;
    const Job job = takeFirst(m_jobs);
    m_continuations.push_back(job(m_stop.get_token()));
    return true;
}

bool FakeBackground::deliverNext() {
    if (m_continuations.empty())
        return false;
    if (const Continuation next = takeFirst(m_continuations))
        next();
    return true;
}

bool FakeBackground::runNext() {
    if (m_jobs.empty())
        return false;
    finish(takeFirst(m_jobs));
    return true;
}

bool FakeBackground::runLast() {
    if (m_jobs.empty())
        return false;
    const Job last = std::move(m_jobs.back());
    m_jobs.pop_back();
    finish(last);
    return true;
}

void FakeBackground::runAll() {
    while (deliverNext() || runNext()) {
    }
}

void FakeBackground::finish(const Job& job) {
    if (const Continuation next = job(m_stop.get_token()))
        next();
}

} // namespace quillon
