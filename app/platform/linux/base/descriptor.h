#pragma once

#include <utility>

#include <unistd.h>

namespace quillon {

/// Owns an open file descriptor and closes it.
class Descriptor {
  public:
    /// `number` as a system call returned it: negative for none.
    explicit Descriptor(int number = -1) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() {
        if (m_number >= 0)
            ::close(m_number);
    }

    explicit operator bool() const { return m_number >= 0; }
    int get() const { return m_number; }

  private:
    int m_number;
};

} // namespace quillon
