#include <quillon/kit/coach/seeded_generator.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

namespace quillon {
namespace {

std::vector<std::uint64_t> firstFour(std::uint64_t seed) {
    SeededGenerator generator(seed);
    return {generator.next(), generator.next(), generator.next(), generator.next()};
}

TEST(SeededGenerator, GivesTheNumbersOfXorshift64Star) {
    EXPECT_EQ(
        firstFour(1),
        (std::vector<std::uint64_t>{
            0x47E4CE4B896CDD1Du, 0xABCFA6A8E079651Du, 0xB9D10D8FEB731F57u, 0x4DB418A0BB1B019Du}));
    EXPECT_EQ(
        firstFour(42),
        (std::vector<std::uint64_t>{
            0x56CE4AB7719BA3A0u, 0xC841EB53EBBB2DDAu, 0xCA466BE0C9980276u, 0xF1ACC7334A7B70DFu}));
    EXPECT_EQ(
        firstFour(0x9E3779B97F4A7C15),
        (std::vector<std::uint64_t>{
            0x0D83B3E29A21487Au, 0x54C44C79F1FE9D67u, 0xA845F342007A0E78u, 0x7D6E0B878A794779u}));
    EXPECT_EQ(
        firstFour(UINT64_MAX),
        (std::vector<std::uint64_t>{
            0xF92CC9E5C6000000u, 0x8FF484D8FD1EAEE3u, 0x346C95F3326FABC6u, 0xC556CC9C37C5F2C0u}));
}

TEST(SeededGenerator, ASeedOfZeroStandsForAnotherNumber) {
    EXPECT_EQ(SeededGenerator(0), SeededGenerator(0x9E3779B97F4A7C15));
    EXPECT_EQ(SeededGenerator(0).state(), 0x9E3779B97F4A7C15u);
    EXPECT_EQ(firstFour(0), firstFour(0x9E3779B97F4A7C15));
}

TEST(SeededGenerator, IsAStandardRandomSource) {
    static_assert(std::uniform_random_bit_generator<SeededGenerator>);
    SeededGenerator one(3);
    SeededGenerator two(3);
    EXPECT_EQ(one(), two.next());
    EXPECT_EQ(one, two);
    EXPECT_EQ(SeededGenerator(3).state(), 3u);
}

TEST(SeededGenerator, NeverStandsStill) {
    SeededGenerator generator(0);
    for (int i = 0; i < 100'000; ++i) {
        const SeededGenerator before = generator;
        generator.next();
        ASSERT_NE(generator, before);
        ASSERT_NE(generator.state(), 0u);
    }
}

} // namespace
} // namespace quillon
