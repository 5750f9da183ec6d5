#include <quillon/app/cli/checkup.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Checkup, PutsEachRemedyBelowItsCheck) {
    const std::vector<Check> checks{
        {"Session bus", Check::Result::good, "answers", ""},
        {"Tray", Check::Result::limited, "no host", "Use `quillon show`."},
        {"Accessibility", Check::Result::missing, "is off", "Turn it on."}};
    EXPECT_EQ(
        checkupText(checks).bytes(), "ok      Session bus    answers\n"
                                     "limited Tray           no host\n"
                                     "        → Use `quillon show`.\n"
                                     "missing Accessibility  is off\n"
                                     "        → Turn it on.\n");
}

TEST(Checkup, KeepsWhatOthersSayInItsLine) {
    const std::vector<Check> checks{{"Window manager", Check::Result::good, "O\x1b[31m\npenbox", ""}};
    EXPECT_EQ(checkupText(checks).bytes(), "ok      Window manager  O<U+001B>[31m<U+000A>penbox\n");
}

TEST(Checkup, IsWellWhenNothingIsMissing) {
    EXPECT_TRUE(allWell({}));
    EXPECT_TRUE(allWell({{"Tray", Check::Result::limited, "", ""}}));
    EXPECT_FALSE(allWell({{"Bus", Check::Result::missing, "", ""}}));
}

} // namespace
} // namespace quillon
