#include "seeded_generator.h"

namespace quillon {

SeededGenerator::SeededGenerator(std::uint64_t seed) : m_state(seed != 0 ? seed : 0x9E3779B97F4A7C15) {}

std::uint64_t SeededGenerator::next() {
    m_state ^= m_state >> 12;
    m_state ^= m_state << 25;
    m_state ^= m_state >> 27;
    return m_state * 0x2545F4914F6CDD1D;
}

} // namespace quillon
