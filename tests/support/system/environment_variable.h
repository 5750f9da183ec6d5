#pragma once

#include <optional>
#include <string>

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

} // namespace quillon
