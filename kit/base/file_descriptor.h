#pragma once

#include <cerrno>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace quillon {

/// Owns an open file, by the number that a system call returned: negative for none.
class FileDescriptor {
  public:
    explicit FileDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    int get() const { return m_descriptor; }
    explicit operator bool() const { return m_descriptor >= 0; }

  private:
    int m_descriptor;
};

/// The reason of the system call that just failed.
inline std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// Calls again as long as a signal interrupts.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

} // namespace quillon
