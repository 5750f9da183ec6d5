#include "private_bus.h"

#include "fake_app_process.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace quillon {
namespace {

constexpr const char* bareConfiguration =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

EnvironmentVariable::EnvironmentVariable(std::string name, const std::string& value)
    : m_name(std::move(name)) {
    if (const char* before = std::getenv(m_name.c_str()))
        m_before = before;
    setenv(m_name.c_str(), value.c_str(), 1);
}

EnvironmentVariable::~EnvironmentVariable() {
    if (m_before)
        setenv(m_name.c_str(), m_before->c_str(), 1);
    else
        unsetenv(m_name.c_str());
}

BareSessionBus::BareSessionBus() {
    const TemporaryFile configuration(bareConfiguration);
    const std::string option = "--config-file=" + configuration.path();
    std::array<const char*, 6> arguments{"dbus-daemon", option.c_str(),      "--nofork",
                                         "--nopidfile", "--print-address=1", nullptr};
    std::array<int, 2> pipes{};
    if (pipe2(pipes.data(), O_CLOEXEC) != 0)
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipes[1], STDOUT_FILENO);
    if (posix_spawnp(&m_pid, "dbus-daemon", &actions, nullptr, const_cast<char**>(arguments.data()), environ)
        != 0)
        m_pid = -1;
    posix_spawn_file_actions_destroy(&actions);
    close(pipes[1]);
    std::array<char, 512> text{};
    if (m_pid > 0 && ::read(pipes[0], text.data(), text.size() - 1) > 0)
        m_address = std::string(text.data()).substr(0, std::string(text.data()).find('\n'));
    close(pipes[0]);
}

BareSessionBus::~BareSessionBus() {
    if (m_pid > 0) {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
}

void killAccessibilityBus() {
    sd_bus* session = nullptr;
    sd_bus* bus = nullptr;
    sd_bus_message* reply = nullptr;
    const char* address = nullptr;
    sd_bus_open_user(&session);
    sd_bus_call_method(
        session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, &reply, "");
    sd_bus_message_read(reply, "s", &address);
    sd_bus_new(&bus);
    sd_bus_set_address(bus, address);
    sd_bus_start(bus);
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(sd_bus_get_fd(bus), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.pid > 1)
        kill(peer.pid, SIGKILL);
    sd_bus_close_unref(bus);
    sd_bus_message_unref(reply);
    sd_bus_close_unref(session);
}

} // namespace quillon
