#include <quillon/kit/base/outcome.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quillon {
namespace {

using Parsed = Outcome<int, std::string>;

TEST(Outcome, IsAValue) {
    Parsed parsed = 3;
    ASSERT_TRUE(parsed);
    EXPECT_EQ(*parsed, 3);
    EXPECT_EQ(parsed.failure(), nullptr);
    EXPECT_EQ(std::move(parsed).value(), std::optional(3));
}

TEST(Outcome, OrTheReasonWhyThereIsNone) {
    Parsed parsed = std::string("no digits");
    EXPECT_FALSE(parsed);
    ASSERT_TRUE(parsed.failure());
    EXPECT_EQ(*parsed.failure(), "no digits");
    EXPECT_EQ(std::move(parsed).value(), std::nullopt);
}

TEST(Outcome, ComparesByWhatItIs) {
    EXPECT_EQ(Parsed(3), Parsed(3));
    EXPECT_NE(Parsed(3), Parsed(4));
    EXPECT_NE(Parsed(0), Parsed(std::string()));
    EXPECT_EQ(Parsed(std::string("a")), Parsed(std::string("a")));
}

TEST(Outcome, GivesAwayWhatCannotBeCopied) {
    Outcome<std::unique_ptr<int>, std::string> made = std::make_unique<int>(7);
    EXPECT_EQ(**made, 7);
    const std::unique_ptr<int> taken = *std::move(made);
    EXPECT_EQ(*taken, 7);
}

} // namespace
} // namespace quillon
