#include "fake_background.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

template <class T>
T takeFirst(std::deque<T>& queue) {
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

constexpr auto hasEnded = [](const auto& pending) { return pending.ended.stop_requested(); };

template <class T>
std::size_t countLive(const std::deque<T>& queue) {
    return static_cast<std::size_t>(std::ranges::count_if(queue, std::not_fn(hasEnded)));
}

} // namespace

FakeBackground::~FakeBackground() {
    m_stop.request_stop();
}

Subscription FakeBackground::run(Job job) {
    m_jobs.push_back({std::move(job), std::stop_source()});
    return Subscription([ended = m_jobs.back().ended]() mutable { ended.request_stop(); });
}

std::size_t FakeBackground::waiting() const {
    return countLive(m_jobs);
}

std::size_t FakeBackground::finished() const {
    return countLive(m_continuations);
}

bool FakeBackground::workNext() {
    dropEnded();
    if (m_jobs.empty())
        return false;
    m_continuations.push_back(work(takeFirst(m_jobs)));
    return true;
}

bool FakeBackground::deliverNext() {
    dropEnded();
    if (m_continuations.empty())
        return false;
    deliver(takeFirst(m_continuations));
    return true;
}

bool FakeBackground::runNext() {
    dropEnded();
    if (m_jobs.empty())
        return false;
    deliver(work(takeFirst(m_jobs)));
    return true;
}

bool FakeBackground::runLast() {
    dropEnded();
    if (m_jobs.empty())
        return false;
    Pending<Job> last = std::move(m_jobs.back());
    m_jobs.pop_back();
    deliver(work(std::move(last)));
    return true;
}

void FakeBackground::runAll() {
    while (deliverNext() || runNext()) {
    }
}

FakeBackground::Pending<Background::Continuation> FakeBackground::work(Pending<Job> job) {
    const std::stop_callback finishing(m_stop.get_token(), [&job] { job.ended.request_stop(); });
    return {job.work(job.ended.get_token()), job.ended};
}

void FakeBackground::deliver(const Pending<Continuation>& continuation) {
    if (continuation.work && !continuation.ended.stop_requested())
        continuation.work();
}

void FakeBackground::dropEnded() {
    std::erase_if(m_jobs, hasEnded);
    std::erase_if(m_continuations, hasEnded);
}

} // namespace quillon
