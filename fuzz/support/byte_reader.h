#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// Reads values out of arbitrary bytes; zeros and empty texts when they are used up.
class ByteReader {
  public:
    ByteReader(const std::uint8_t* data, std::size_t size)
        : m_left(reinterpret_cast<const char*>(data), size) {}

    std::uint8_t byte() {
        if (m_left.empty())
            return 0;
        const auto value = static_cast<std::uint8_t>(m_left.front());
        m_left.remove_prefix(1);
        return value;
    }

    /// One byte of length, then as many bytes.
    std::string text() {
        const std::size_t length = std::min<std::size_t>(byte(), m_left.size());
        std::string value(m_left.substr(0, length));
        m_left.remove_prefix(length);
        return value;
    }

    bool isAtEnd() const { return m_left.empty(); }

  private:
    std::string_view m_left;
};

} // namespace quillon
