#include <quillon/app/platform/linux/tray/icon_blending.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace quillon {
namespace {

using testing::ElementsAre;
using Numbers = std::vector<std::uint32_t>;

TEST(IconBlending, ATrayWithLightSignsIsDark) {
    EXPECT_EQ(schemeOfTrayColours(Numbers{65535, 65535, 65535}), ColourScheme::dark);
    EXPECT_EQ(schemeOfTrayColours(Numbers{0, 0, 0, 65535, 65535, 65535}), ColourScheme::light);
    EXPECT_EQ(schemeOfTrayColours(Numbers{0xffffffff, 0xffffffff, 0xffffffff}), ColourScheme::dark);
    EXPECT_EQ(schemeOfTrayColours(Numbers{65535, 65535}), std::nullopt);
}

TEST(IconBlending, ABackgroundTellsItsScheme) {
    EXPECT_EQ(schemeOfBackground(Numbers{0xff202020, 0xff000000}), ColourScheme::dark);
    EXPECT_EQ(schemeOfBackground(Numbers{0xfff0f0f0, 0xffffffff}), ColourScheme::light);
    EXPECT_EQ(schemeOfBackground(Numbers{0, 0, 0xffffffff}), std::nullopt) << "one sees through it";
    EXPECT_EQ(schemeOfBackground(Numbers{}), std::nullopt);
}

TEST(IconBlending, LaysTheIconOverTheBackground) {
    const IconPixels icon{.width = 3, .height = 1, .argb = {0xffffffff, 0x80ffffff, 0x00ffffff}};
    EXPECT_THAT(
        blended(icon, Numbers{0xff102030, 0xff000000, 0xff102030}),
        ElementsAre(0xffffffff, 0xff808080, 0xff102030));
    EXPECT_THAT(blended(icon, Numbers{0, 0, 0}), ElementsAre(0xffffffff, 0x80808080, 0)) << "premultiplied";
    EXPECT_THAT(blended({}, Numbers{0xff102030}), ElementsAre(0xff102030));
}

} // namespace
} // namespace quillon
