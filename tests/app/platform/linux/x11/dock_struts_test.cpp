#include <quillon/app/platform/linux/x11/dock_struts.h>

#include <gmock/gmock.h>

#include <array>
#include <limits>

namespace quillon {

void PrintTo(const PixelBox& box, std::ostream* stream) {
    *stream << box.width << "x" << box.height << "+" << box.x << "+" << box.y;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Edge = DockStrut::Edge;

constexpr std::uint32_t huge = std::numeric_limits<std::uint32_t>::max();

std::vector<DockStrut> read(std::vector<std::uint32_t> numbers) {
    return dockStruts(numbers);
}

TEST(DockStrutsTest, APartialStrutTellsItsDepthAndWhatItTakesAlongTheEdge) {
    EXPECT_THAT(
        read({10, 0, 0, 0, 100, 499, 0, 0, 0, 0, 0, 0}), ElementsAre(DockStrut{Edge::left, 10, 100, 500}));
    EXPECT_THAT(
        read({0, 20, 0, 0, 0, 0, 100, 499, 0, 0, 0, 0}), ElementsAre(DockStrut{Edge::right, 20, 100, 500}));
    EXPECT_THAT(
        read({0, 0, 30, 0, 0, 0, 0, 0, 100, 499, 0, 0}), ElementsAre(DockStrut{Edge::top, 30, 100, 500}));
    EXPECT_THAT(
        read({0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 100, 499}), ElementsAre(DockStrut{Edge::bottom, 40, 100, 500}));
}

TEST(DockStrutsTest, AnOldStrutTakesAllOfItsEdge) {
    const auto struts = read({10, 0, 0, 40});
    ASSERT_EQ(struts.size(), 2U);
    EXPECT_EQ(struts[0], (DockStrut{Edge::left, 10, 0, 65536}));
    EXPECT_EQ(struts[1], (DockStrut{Edge::bottom, 40, 0, 65536}));
}

TEST(DockStrutsTest, AWindowThatKeepsNothingHasNone) {
    EXPECT_THAT(read({0, 0, 0, 0}), IsEmpty());
    EXPECT_THAT(read({0, 0, 0, 0, 0, 99, 0, 99, 0, 99, 0, 99}), IsEmpty());
}

TEST(DockStrutsTest, AnyOtherCountOfNumbersSaysNothing) {
    for (const std::size_t count : {0U, 1U, 3U, 5U, 11U, 13U})
        EXPECT_THAT(read(std::vector<std::uint32_t>(count, 5)), IsEmpty()) << count;
}

TEST(DockStrutsTest, ImpossibleNumbersAreCutAndARangeThatEndsBeforeItBeginsIsNone) {
    EXPECT_THAT(
        read({huge, 0, 0, 0, 0, huge, 0, 0, 0, 0, 0, 0}),
        ElementsAre(DockStrut{Edge::left, 65535, 0, 65536}));
    EXPECT_THAT(read({10, 0, 0, 0, 500, 100, 0, 0, 0, 0, 0, 0}), IsEmpty());
}

/// Two monitors beside each other, the second one lower by 200 and smaller.
struct FreeBoxTest : testing::Test {
    static constexpr PixelBox desktop{0, 0, 2400, 1000};
    static constexpr PixelBox first{0, 0, 1400, 1000};
    static constexpr PixelBox second{1400, 200, 1000, 700};

    static PixelBox freeOfFirst(const std::vector<DockStrut>& struts) {
        return freeBox(first, desktop, struts);
    }
    static PixelBox freeOfSecond(const std::vector<DockStrut>& struts) {
        return freeBox(second, desktop, struts);
    }
};

TEST_F(FreeBoxTest, WithoutDocksAllOfAMonitorIsFree) {
    EXPECT_EQ(freeOfFirst({}), first);
    EXPECT_EQ(freeOfSecond({}), second);
}

TEST_F(FreeBoxTest, ADockAtAnOuterEdgeTakesOfItsMonitorOnly) {
    EXPECT_EQ(freeOfFirst({{Edge::left, 50, 0, 1000}}), (PixelBox{50, 0, 1350, 1000}));
    EXPECT_EQ(freeOfSecond({{Edge::left, 50, 0, 1000}}), second);
    EXPECT_EQ(freeOfSecond({{Edge::right, 50, 200, 900}}), (PixelBox{1400, 200, 950, 700}));
    EXPECT_EQ(freeOfFirst({{Edge::right, 50, 200, 900}}), first);
    EXPECT_EQ(freeOfFirst({{Edge::top, 30, 0, 1400}}), (PixelBox{0, 30, 1400, 970}));
    EXPECT_EQ(freeOfSecond({{Edge::top, 30, 0, 1400}}), second);
    EXPECT_EQ(freeOfFirst({{Edge::bottom, 30, 0, 1400}}), (PixelBox{0, 0, 1400, 970}));
    EXPECT_EQ(freeOfSecond({{Edge::bottom, 30, 0, 1400}}), second);
}

TEST_F(FreeBoxTest, ADockAtAnInnerEdgeTakesOfTheMonitorThatItIsOn) {
    const std::vector<DockStrut> leftOfSecond{{Edge::left, 1440, 200, 900}};
    EXPECT_EQ(freeOfSecond(leftOfSecond), (PixelBox{1440, 200, 960, 700}));
    EXPECT_EQ(freeOfFirst(leftOfSecond), first) << "the strut only passes it";
    const std::vector<DockStrut> rightOfFirst{{Edge::right, 1060, 0, 1000}};
    EXPECT_EQ(freeOfFirst(rightOfFirst), (PixelBox{0, 0, 1340, 1000}));
    EXPECT_EQ(freeOfSecond(rightOfFirst), second);
}

TEST_F(FreeBoxTest, ADockOfAMonitorThatDoesNotReachTheDesktopsEdgeCountsFromThere) {
    EXPECT_EQ(freeOfSecond({{Edge::top, 230, 1400, 2400}}), (PixelBox{1400, 230, 1000, 670}));
    EXPECT_EQ(freeOfSecond({{Edge::bottom, 130, 1400, 2400}}), (PixelBox{1400, 200, 1000, 670}));
    EXPECT_EQ(freeOfSecond({{Edge::bottom, 100, 1400, 2400}}), second) << "it ends where the monitor begins";
}

TEST_F(FreeBoxTest, MonitorsAboveEachOtherAreToldApartToo) {
    constexpr PixelBox tall{0, 0, 1000, 2000};
    constexpr PixelBox upper{0, 0, 1000, 1000};
    constexpr PixelBox lower{0, 1000, 1000, 1000};
    const std::vector<DockStrut> topOfLower{{Edge::top, 1030, 0, 1000}};
    EXPECT_EQ(freeBox(lower, tall, topOfLower), (PixelBox{0, 1030, 1000, 970}));
    EXPECT_EQ(freeBox(upper, tall, topOfLower), upper);
    const std::vector<DockStrut> bottomOfUpper{{Edge::bottom, 1030, 0, 1000}};
    EXPECT_EQ(freeBox(upper, tall, bottomOfUpper), (PixelBox{0, 0, 1000, 970}));
    EXPECT_EQ(freeBox(lower, tall, bottomOfUpper), lower);
}

TEST_F(FreeBoxTest, ARangeThatOnlyTouchesAMonitorTakesNothingOfIt) {
    EXPECT_EQ(freeOfSecond({{Edge::top, 230, 0, 1400}}), second);
    EXPECT_EQ(freeOfSecond({{Edge::top, 230, 0, 1401}}), (PixelBox{1400, 230, 1000, 670}));
    EXPECT_EQ(freeOfSecond({{Edge::right, 50, 900, 1000}}), second);
    EXPECT_EQ(freeOfSecond({{Edge::right, 50, 899, 1000}}), (PixelBox{1400, 200, 950, 700}));
}

TEST_F(FreeBoxTest, TheDeeperOfTwoDocksAtAnEdgeCountsWhicheverComesFirst) {
    const DockStrut thin{Edge::top, 20, 0, 500};
    const DockStrut thick{Edge::top, 60, 500, 1000};
    EXPECT_EQ(freeOfFirst({thin, thick}), (PixelBox{0, 60, 1400, 940}));
    EXPECT_EQ(freeOfFirst({thick, thin}), (PixelBox{0, 60, 1400, 940}));
}

TEST_F(FreeBoxTest, DocksAtAllEdgesAddUp) {
    EXPECT_EQ(
        freeOfFirst(
            {{Edge::left, 10, 0, 65536},
             {Edge::top, 30, 0, 65536},
             {Edge::right, 1020, 0, 1000},
             {Edge::bottom, 40, 0, 65536}}),
        (PixelBox{10, 30, 1370, 930}));
}

TEST_F(FreeBoxTest, DocksThatLeaveNothingAreNotBelieved) {
    EXPECT_EQ(freeOfFirst({{Edge::left, 700, 0, 1000}, {Edge::right, 1700, 0, 1000}}), first);
    EXPECT_EQ(freeOfFirst({{Edge::left, 65535, 0, 65536}}), first);
    EXPECT_EQ(freeOfSecond({{Edge::bottom, 65535, 0, 65536}}), second);
}

} // namespace
} // namespace quillon
