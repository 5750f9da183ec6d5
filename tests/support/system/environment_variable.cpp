#include "environment_variable.h"

#include <cstdlib>
#include <utility>

namespace quillon {

EnvironmentVariable::EnvironmentVariable(std::string name, const std::string& value)
    : m_name(std::move(name)) {
    if (const char* before = std::getenv(m_name.c_str()))
        m_before = before;
    ::setenv(m_name.c_str(), value.c_str(), 1);
}

EnvironmentVariable::~EnvironmentVariable() {
    if (m_before)
        ::setenv(m_name.c_str(), m_before->c_str(), 1);
    else
        ::unsetenv(m_name.c_str());
}

} // namespace quillon
