#include "bus_daemon.h"

#include <quillon/kit/base/file_descriptor.h>

#include <array>
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

std::string configuration(const std::filesystem::path& folder) {
    return R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:dir=)"
           + folder.string() + R"(</listen>
<policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy></busconfig>)";
}

/// The program with its output at `output`; -1 when it cannot be started.
pid_t start(const std::string& option, const FileDescriptor& output) {
    std::array<const char*, 6> arguments{"dbus-daemon", option.c_str(),      "--nofork",
                                         "--nopidfile", "--print-address=1", nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output.get(), STDOUT_FILENO);
    pid_t process = -1;
    const int error = posix_spawnp(
        &process, "dbus-daemon", &actions, nullptr, const_cast<char**>(arguments.data()), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : -1;
}

/// The first line that is written to `output`, once it is; empty when the writer ends before.
std::string firstLine(const FileDescriptor& output) {
    std::string line;
    char byte = 0;
    while (uninterrupted([&] { return ::read(output.get(), &byte, 1); }) == 1 && byte != '\n')
        line += byte;
    return line;
}

} // namespace

BusDaemon::BusDaemon() {
    const auto file = m_folder.write("bus.conf", configuration(m_folder.path()));
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    const FileDescriptor ours(ends[0]);
    {
        const FileDescriptor theirs(ends[1]);
        m_process = start("--config-file=" + file.string(), theirs);
    }
    m_address = firstLine(ours);
}

BusDaemon::~BusDaemon() {
    kill();
}

void BusDaemon::kill() {
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }
    m_process = -1;
}

} // namespace quillon
