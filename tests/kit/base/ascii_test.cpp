#include <quillon/kit/base/ascii.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Ascii, ChangesTheCaseOfItsLettersAlone) {
    EXPECT_EQ(ascii::toLower("@AZ[`az{ ÄÉ İ"), "@az[`az{ ÄÉ İ");
    EXPECT_EQ(ascii::toUpper('a'), 'A');
    EXPECT_EQ(ascii::toUpper('z'), 'Z');
    EXPECT_EQ(ascii::toUpper('{'), '{');
    EXPECT_EQ(ascii::toUpper('\xe4'), '\xe4');
}

} // namespace
} // namespace quillon
