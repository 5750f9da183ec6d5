#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quillon {

/// A running fake application (see fake_app/options.h for what it can be told). On the accessibility bus when
/// the constructor returns, killed by the destructor.
class FakeAppProcess {
  public:
    /// `program` is the fake application or a link to it, whose name the process then bears.
    explicit FakeAppProcess(std::vector<std::string> arguments, std::string program = QUILLON_FAKE_APP);
    ~FakeAppProcess();
    FakeAppProcess(const FakeAppProcess&) = delete;
    FakeAppProcess& operator=(const FakeAppProcess&) = delete;

    pid_t pid() const { return m_pid; }
    /// Whether it found its way to the bus.
    bool isReady() const { return m_isReady; }
    /// The members that were called so far, in order: "GetRole", "Get".
    std::vector<std::string> calls() const;
    /// Lets a stopped application go on.
    void resume() const;

  private:
    std::string m_log;
    pid_t m_pid = -1;
    bool m_isReady = false;
};

/// A file in the temporary folder, gone with this object.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& path() const { return m_path; }

  private:
    std::string m_path;
};

} // namespace quillon
