#include "output.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <poll.h>

namespace quillon {

namespace {

void waitForRoom(int descriptor) {
    pollfd room{descriptor, POLLOUT, 0};
    ::poll(&room, 1, -1);
}

/// 0, or an errno when not all of it could be written.
int writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno == EAGAIN)
            waitForRoom(descriptor);
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

} // namespace

void Output::say(const TerminalText& message) {
    // Whoever closed the messages does not want them.
    static_cast<void>(writeAll(m_messages, ("quillon: " + message + "\n").bytes()));
}

void Output::log(const TerminalText& line) {
    static_cast<void>(writeAll(m_messages, (line + "\n").bytes()));
}

ExitCode Output::fail(ExitCode code, const TerminalText& message) {
    say(message);
    return code;
}

void Output::write(std::string_view bytes) {
    if (m_error == 0)
        m_error = writeAll(m_results, bytes);
}

void Output::printJson(const std::optional<std::string>& json) {
    if (json)
        write(*json + '\n');
    else
        m_isMissingJson = true;
}

ExitCode Output::finish(ExitCode code) {
    if (m_isMissingJson)
        return fail(ExitCode::failure, "a name in the result is not UTF-8, and JSON holds nothing else");
    if (m_error == 0)
        return code;
    return fail(
        ExitCode::failure,
        TerminalText::sentence(QCoreApplication::translate("CommandLine", "the output was lost: %1")
                                   .arg(QString::fromLocal8Bit(std::strerror(m_error)))));
}

void fillClosedStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF)
            // The lowest free number is `stream`. It can be opened and yet neither read from nor written to.
            static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

} // namespace quillon
