#pragma once

#include <cstdint>
#include <limits>

namespace quillon {

/// A small reproducible source of random numbers (xorshift64*), for draws that must come out the same again.
/// Not for secrets. Serves as a standard uniform random bit generator.
class SeededGenerator {
  public:
    using result_type = std::uint64_t;

    /// A seed of 0, with which the generator would stand still, stands for 0x9E3779B97F4A7C15.
    explicit SeededGenerator(std::uint64_t seed);

    /// The next number.
    std::uint64_t next();
    std::uint64_t operator()() { return next(); }

    std::uint64_t state() const { return m_state; }

    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }

    bool operator==(const SeededGenerator&) const = default;

  private:
    std::uint64_t m_state;
};

} // namespace quillon
