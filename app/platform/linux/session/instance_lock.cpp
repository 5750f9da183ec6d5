#include "instance_lock.h"

#include <csignal>
#include <string>

#include <fcntl.h>
#include <poll.h>
extern "C" {
#include <sys/pidfd.h> // says so itself in later versions of the C library only
}

namespace quillon {

namespace {

/// A display's name as a part of a file's name: ":0" stays, a path loses its slashes.
std::string displayOf(const Environment& environment) {
    std::string name = environment("DISPLAY");
    if (name.empty())
        name = environment("WAYLAND_DISPLAY");
    for (char& character : name)
        if (character == '/')
            character = '_';
    return name;
}

struct flock wholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

/// The process that keeps others from locking the file; 0 when none does, or it cannot be seen from here.
pid_t holderOf(int file) {
    struct flock lock = wholeFile();
    if (::fcntl(file, F_GETLK, &lock) < 0 || lock.l_type == F_UNLCK || lock.l_pid < 0)
        return 0;
    return lock.l_pid;
}

bool endsWithin(int process, std::chrono::milliseconds limit) {
    pollfd end{process, POLLIN, 0};
    return ::poll(&end, 1, static_cast<int>(limit.count())) == 1;
}

} // namespace

std::filesystem::path instanceLockFile(const Environment& environment) {
    const std::filesystem::path folder = environment("XDG_RUNTIME_DIR");
    return folder.is_absolute() ? folder / ("app.quillon.Quillon" + displayOf(environment) + ".lock")
                                : std::filesystem::path();
}

InstanceLock::InstanceLock(const std::filesystem::path& file)
    : m_file(file.empty() ? -1 : ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)) {}

bool InstanceLock::take() {
    struct flock lock = wholeFile();
    return !m_file || ::fcntl(m_file.get(), F_SETLK, &lock) == 0;
}

bool InstanceLock::takeOver(std::chrono::milliseconds limit) {
    if (take())
        return true;
    const pid_t pid = holderOf(m_file.get());
    const FileDescriptor process(pid > 0 ? ::pidfd_open(pid, 0) : -1);
    // Asked again, for the number may have become another process's before it was opened.
    if (!process || holderOf(m_file.get()) != pid)
        return take();
    // A process that is stopped has to go on to end.
    for (const int wanted : {SIGTERM, SIGCONT})
        if (::pidfd_send_signal(process.get(), wanted, nullptr, 0) < 0)
            return take();
    return endsWithin(process.get(), limit) && take();
}

} // namespace quillon
