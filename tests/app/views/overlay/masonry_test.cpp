#include <quillon/app/views/overlay/masonry.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace quillon {
namespace {

using Stacks = std::vector<std::vector<std::size_t>>;

Stacks dealRows(std::vector<std::size_t> rows, std::size_t columns = Masonry::overlayColumns) {
    std::ranges::transform(rows, rows.begin(), Masonry::weight);
    return Masonry::deal(rows, columns);
}

TEST(Masonry, ABigGroupLeavesTheOthersToTheNextColumns) {
    EXPECT_EQ(dealRows({30, 1, 1}), (Stacks{{0}, {1}, {2}}));
}

TEST(Masonry, AmongEqualHeightsTheLeftmostWins) {
    EXPECT_EQ(dealRows({5, 5, 5, 5}), (Stacks{{0, 3}, {1}, {2}}));
}

TEST(Masonry, FewerGroupsThanColumnsLeaveColumnsEmpty) {
    EXPECT_EQ(dealRows({4}), (Stacks{{0}, {}, {}}));
    EXPECT_EQ(dealRows({4, 9}), (Stacks{{0}, {1}, {}}));
    EXPECT_EQ(dealRows({}), (Stacks{{}, {}, {}}));
}

TEST(Masonry, TitleAndSpacingCountAsTwoRows) {
    // Column heights 10+2, 4+2+4+2 and 3+2: without the twos the second column would be lower than the first.
    EXPECT_EQ(dealRows({10, 4, 3, 4, 2}), (Stacks{{0}, {1, 4}, {2, 3}}));
}

TEST(Masonry, LaterGroupsFillTheLowestColumn) {
    EXPECT_EQ(dealRows({9, 2, 5, 1, 1}), (Stacks{{0}, {1, 3, 4}, {2}}));
}

TEST(Masonry, WithoutColumnsNothingIsDealt) {
    EXPECT_EQ(dealRows({1, 2, 3}, 0), Stacks{});
}

TEST(Masonry, EveryGroupIsDealtOnceAndKeepsItsOrder) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::vector<std::size_t> rows(random() % 40);
        std::ranges::generate(rows, [&] { return random() % 60; });
        const Stacks stacks = dealRows(rows, 1 + random() % 5);
        std::vector<std::size_t> dealt;
        for (const auto& stack : stacks) {
            EXPECT_TRUE(std::ranges::is_sorted(stack));
            dealt.insert(dealt.end(), stack.begin(), stack.end());
        }
        std::ranges::sort(dealt);
        std::vector<std::size_t> all(rows.size());
        std::iota(all.begin(), all.end(), std::size_t{0});
        EXPECT_EQ(dealt, all);
    }
}

} // namespace
} // namespace quillon
