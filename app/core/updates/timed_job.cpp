#include "timed_job.h"

#include <utility>

namespace quillon {

void TimedJob::start(Background::Job job, Seconds limit, std::function<void()> late) {
    m_limit = m_timers.after(limit, [this, late = std::move(late)] {
        const auto told = late; // the timer goes, and its callback with it
        end();
        told();
    });
    m_job = m_background.run([this, job = std::move(job)](std::stop_token stop) -> Background::Continuation {
        return [this, done = job(stop)] {
            const auto told = done;
            end();
            told();
        };
    });
}

void TimedJob::end() {
    m_job.reset();
    m_limit.reset();
}

} // namespace quillon
