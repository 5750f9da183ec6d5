#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

namespace quillon {

/// Gives an environment variable another value for as long as this object lives.
class EnvironmentVariable {
  public:
    EnvironmentVariable(std::string name, const std::string& value);
    ~EnvironmentVariable();
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  private:
    std::string m_name;
    std::optional<std::string> m_before;
};

/// A session bus on which there are no services to start, so no accessibility bus either.
class BareSessionBus {
  public:
    BareSessionBus();
    ~BareSessionBus();
    BareSessionBus(const BareSessionBus&) = delete;
    BareSessionBus& operator=(const BareSessionBus&) = delete;

    bool isRunning() const { return m_pid > 0 && !m_address.empty(); }
    const std::string& address() const { return m_address; }

  private:
    pid_t m_pid = -1;
    std::string m_address;
};

/// Kills the process that is the accessibility bus of this session.
void killAccessibilityBus();

} // namespace quillon
