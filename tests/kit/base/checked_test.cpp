#include <quillon/kit/base/checked.h>

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

constexpr Count largest = std::numeric_limits<Count>::max();
constexpr Count smallest = std::numeric_limits<Count>::min();

TEST(Checked, AddsUpToTheEndsOfTheRange) {
    EXPECT_EQ(checkedAdd(largest - 1, 1), largest);
    EXPECT_EQ(checkedAdd(smallest, 0), smallest);
    EXPECT_EQ(checkedAdd(largest, smallest), -1);
}

TEST(Checked, SubtractsUpToTheEndsOfTheRange) {
    EXPECT_EQ(checkedSubtract(smallest + 1, 1), smallest);
    EXPECT_EQ(checkedSubtract(largest, largest), 0);
    EXPECT_EQ(checkedSubtract(-1, largest), smallest);
}

TEST(CheckedDeathTest, AnOverflowStopsTheProgramAndNamesTheRule) {
    constexpr const char* rule = "program error: a counter left the range of a signed 64-bit integer";
    EXPECT_DEATH(checkedAdd(largest, 1), rule);
    EXPECT_DEATH(checkedAdd(smallest, -1), rule);
    EXPECT_DEATH(checkedSubtract(smallest, 1), rule);
    EXPECT_DEATH(checkedSubtract(0, smallest), rule);
}

TEST(ProgramErrorDeathTest, WritesItsRuleAndAborts) {
    EXPECT_EXIT(
        programError("two is two"), testing::KilledBySignal(SIGABRT), "quillon: program error: two is two\n");
}

} // namespace
} // namespace quillon
