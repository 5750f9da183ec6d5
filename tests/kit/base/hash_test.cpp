#include <quillon/kit/base/hash.h>
#include <quillon/kit/base/instant.h>

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillon {
namespace {

TEST(Hash, IsEqualForEqualValues) {
    EXPECT_EQ(hashOf(1, std::string("a"), true), hashOf(1, std::string("a"), true));
    const std::map<std::string, std::optional<Instant>> map{{"a", distantPast}, {"b", std::nullopt}};
    EXPECT_EQ(hashOf(map), hashOf(std::map<std::string, std::optional<Instant>>(map)));
}

TEST(Hash, TellsOrderAndPlaceApart) {
    EXPECT_NE(hashOf(1, 2), hashOf(2, 1));
    using Texts = std::vector<std::string>;
    EXPECT_NE(hashOf(Texts{"a", "b"}), hashOf(Texts{"b", "a"}));
    EXPECT_NE(hashOf(Texts{"a"}, Texts{}), hashOf(Texts{}, Texts{"a"}));
}

TEST(Hash, TellsAbsentFromZero) {
    EXPECT_NE(hashOf(std::optional<Instant>()), hashOf(std::optional<Instant>(Instant())));
    EXPECT_NE(hashOf(std::optional<std::string>()), hashOf(std::optional<std::string>("")));
}

TEST(Hash, SeesBothPartsOfAPair) {
    using Map = std::map<std::string, Instant>;
    const Instant later = after(Instant(), Seconds(1));
    EXPECT_NE(hashOf(Map{{"a", Instant()}}), hashOf(Map{{"b", Instant()}}));
    EXPECT_NE(hashOf(Map{{"a", Instant()}}), hashOf(Map{{"a", later}}));
}

} // namespace
} // namespace quillon
