#include "fake_app_process.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {
namespace {

constexpr int startLimit = 10000; // milliseconds

/// A name that no other test of this or another process uses.
std::string temporaryName() {
    static std::atomic<int> number = 0;
    const std::string name = "quillon-test-" + std::to_string(getpid()) + "-" + std::to_string(number++);
    return std::filesystem::temp_directory_path() / name;
}

/// Waits for the line that the application prints when it is on the bus.
bool saysReady(int output) {
    pollfd descriptor{output, POLLIN, 0};
    if (poll(&descriptor, 1, startLimit) <= 0)
        return false;
    std::array<char, 64> text{};
    return read(output, text.data(), text.size()) > 0 && std::string(text.data()).starts_with("ready");
}

} // namespace

FakeAppProcess::FakeAppProcess(std::vector<std::string> arguments, std::string program)
    : m_log(temporaryName()) {
    arguments.insert(arguments.begin(), program);
    arguments.insert(arguments.end(), {"--log", m_log});
    std::vector<char*> raw;
    for (std::string& argument : arguments)
        raw.push_back(argument.data());
    raw.push_back(nullptr);

    std::array<int, 2> pipes{};
    if (pipe2(pipes.data(), O_CLOEXEC) != 0)
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipes[1], STDOUT_FILENO);
    if (posix_spawn(&m_pid, program.c_str(), &actions, nullptr, raw.data(), environ) != 0)
        m_pid = -1;
    posix_spawn_file_actions_destroy(&actions);
    close(pipes[1]);
    m_isReady = m_pid > 0 && saysReady(pipes[0]);
    close(pipes[0]);
}

FakeAppProcess::~FakeAppProcess() {
    if (m_pid > 0) {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    unlink(m_log.c_str());
}

std::vector<std::string> FakeAppProcess::calls() const {
    std::vector<std::string> members;
    std::ifstream log(m_log);
    for (std::string line; std::getline(log, line);)
        members.push_back(line.substr(0, line.find(' ')));
    return members;
}

void FakeAppProcess::resume() const {
    kill(m_pid, SIGCONT);
}

TemporaryFile::TemporaryFile(const std::string& content) : m_path(temporaryName()) {
    std::ofstream(m_path) << content;
}

TemporaryFile::~TemporaryFile() {
    unlink(m_path.c_str());
}

} // namespace quillon
