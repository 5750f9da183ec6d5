#include "background_writes.h"

#include <mutex>
#include <utility>

namespace quillon {

/// The write that is under way and the one that waits.
class BackgroundWrites::Line {
  public:
    void put(Write write) {
        const std::lock_guard lock(m_changing);
        m_waiting = std::move(write);
    }
    /// Does what waits, when nothing is under way any more. Whoever comes first takes it: a write that was
    /// taken or replaced is not there for a job that comes later.
    void work() {
        const std::lock_guard lock(m_writing);
        if (const Write write = take())
            write();
    }
    bool isEmpty() const {
        const std::lock_guard lock(m_changing);
        return !m_waiting;
    }

  private:
    Write take() {
        const std::lock_guard lock(m_changing);
        return std::exchange(m_waiting, nullptr);
    }

    std::mutex m_writing;          ///< held during a write
    mutable std::mutex m_changing; ///< held only for a moment, so that putting never waits for a disk
    Write m_waiting;
};

BackgroundWrites::BackgroundWrites(Background& background)
    : m_background(background), m_line(std::make_shared<Line>()) {}

BackgroundWrites::~BackgroundWrites() = default;

void BackgroundWrites::put(Write write) {
    m_line->put(std::move(write));
    if (!m_job)
        start();
}

void BackgroundWrites::start() {
    m_job = m_background.run([this, line = m_line](const std::stop_token&) {
        line->work();
        return [this] { ended(); };
    });
}

void BackgroundWrites::ended() {
    m_job.reset();
    if (!m_line->isEmpty())
        start();
}

void BackgroundWrites::finish() {
    m_line->work();
    m_job.reset();
}

void BackgroundWrites::finishWith(Write write) {
    m_line->put(std::move(write));
    finish();
}

} // namespace quillon
