#include <quillon/app/core/updates/release_version.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace quillon {
namespace {

ReleaseVersion version(std::string_view text) {
    const auto version = ReleaseVersion::fromText(text);
    EXPECT_TRUE(version) << text;
    return version.value_or(ReleaseVersion());
}

TEST(ReleaseVersionTest, ComesAfterWhatIsOlder) {
    constexpr std::array<std::string_view, 24> rising{
        "0",           "0.0.1",     "0.1-dev",   "0.1",         "0.2",         "0.9.9",
        "0.10",        "1.0-1",     "1.0-alpha", "1.0-alpha.1", "1.0-alpha.2", "1.0-alpha.10",
        "1.0-alpha.b", "1.0b2",     "1.0-beta",  "1.0~rc1",     "1.0rc2",      "1.0-rc.10",
        "1.0",         "1.0.1-rc1", "1.0.1",     "1.1",         "2.0",         "20240501.1"};
    for (std::size_t older = 0; older < rising.size(); ++older) {
        EXPECT_EQ(version(rising[older]), version(rising[older]));
        for (std::size_t newer = older + 1; newer < rising.size(); ++newer) {
            EXPECT_LT(version(rising[older]), version(rising[newer]))
                << rising[older] << " " << rising[newer];
            EXPECT_GT(version(rising[newer]), version(rising[older]))
                << rising[older] << " " << rising[newer];
        }
    }
}

TEST(ReleaseVersionTest, OneReleaseMayBeWrittenInSeveralWays) {
    for (const auto& [one, other] : std::vector<std::pair<std::string_view, std::string_view>>{
             {"1.2", "1.2.0"},
             {"1", "1.0.0.0"},
             {"0", "0.0"},
             {"v1.2", "1.2"},
             {"V1.2", "1.2"},
             {" 1.2\n", "1.2"},
             {"1.02", "1.2"},
             {"1.2-RC1", "1.2-rc1"},
             {"1.2rc1", "1.2-rc.1"},
             {"1.2.rc1", "1.2-rc1"},
             {"1.2+build.7", "1.2"},
             {"1.2-beta+7", "1.2-beta+8"}})
        EXPECT_EQ(version(one), version(other)) << one << " " << other;
}

TEST(ReleaseVersionTest, NumbersMayHaveAnyLength) {
    EXPECT_LT(version("1.18446744073709551615"), version("1.18446744073709551616"));
    EXPECT_LT(version("1.9"), version("1.99999999999999999999999999999999999999999999"));
}

TEST(ReleaseVersionTest, OtherTextsAreNoVersions) {
    for (const std::string_view text :
         {"", " ", "v", "beta", "-1", ".5", "1,2", "1.2 beta", "1.2/3", "1.2<b>", "1.2\xc3\xa4", "1.2+a_b",
          "+5", "vv1", "1.2_3"})
        EXPECT_EQ(ReleaseVersion::fromText(text), std::nullopt) << text;
    EXPECT_TRUE(ReleaseVersion::fromText(std::string(ReleaseVersion::longest, '1')));
    EXPECT_FALSE(ReleaseVersion::fromText(std::string(ReleaseVersion::longest + 1, '1')));
}

} // namespace
} // namespace quillon
