#include "end_signals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

// A signal's handler has no other way to what belongs to whom.
std::atomic<int> writingEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void tellEventLoop(int) {
    const int error = errno;
    [[maybe_unused]] const ssize_t written = write(writingEnd, "", 1);
    errno = error;
}

void handleBy(void (*handler)(int), int flags) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    for (const int signal : endingSignals)
        sigaction(signal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(std::function<void()> asked) {
    if (pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writingEnd = m_pipe[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this, asked = std::move(asked)] {
            std::array<char, endingSignals.size()> told{};
            if (read(m_pipe[0], told.data(), told.size()) > 0)
                asked();
        });
    handleBy(tellEventLoop, SA_RESTART | static_cast<int>(SA_RESETHAND));
}

EndSignals::~EndSignals() {
    if (!m_notifier)
        return;
    handleBy(SIG_DFL, 0);
    m_notifier.reset();
    for (const int end : m_pipe)
        close(end);
}

} // namespace quillon
