#include <quillon/app/core/panel_placement.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

using namespace PanelPlacement;

const Screen left{{0, 0, 1920, 1080}, {0, 30, 1920, 1050}};
const Screen right{{1920, 0, 1280, 1024}, {1920, 0, 1240, 1024}};

TEST(PanelPlacement, ChoosesTheScreenUnderThePointer) {
    const std::vector screens{left, right};
    EXPECT_EQ(visibleFrame(screens, {10, 10}), left.visibleFrame);
    EXPECT_EQ(visibleFrame(screens, {1920, 10}), right.visibleFrame);
    EXPECT_EQ(visibleFrame(screens, {1919.5, 1079}), left.visibleFrame);
}

TEST(PanelPlacement, FallsBackToTheMainScreen) {
    const std::vector screens{left, right};
    EXPECT_EQ(visibleFrame(screens, {5000, 5000}), left.visibleFrame);
    EXPECT_EQ(visibleFrame(screens, {-1, 0}), left.visibleFrame);
}

TEST(PanelPlacement, AssumesAScreenWhenThereIsNone) {
    EXPECT_EQ(visibleFrame({}, {0, 0}), (Rect{0, 0, 1440, 900}));
}

TEST(PanelPlacement, LimitsTheOverlayOnALargeScreen) {
    EXPECT_EQ(overlayFrame({0, 0, 1920, 1080}), (Rect{370, 160, 1180, 760}));
}

TEST(PanelPlacement, ScalesTheOverlayOnASmallScreen) {
    const Rect frame = overlayFrame({0, 0, 1280, 800});
    EXPECT_DOUBLE_EQ(frame.width, 1100.8);
    EXPECT_DOUBLE_EQ(frame.height, 640);
    EXPECT_DOUBLE_EQ(frame.x, (1280 - 1100.8) / 2);
    EXPECT_DOUBLE_EQ(frame.y, 80);
}

TEST(PanelPlacement, CentresTheOverlayInTheVisiblePartOfItsScreen) {
    const Rect frame = overlayFrame({1920, 100, 1280, 800});
    EXPECT_DOUBLE_EQ(frame.x + frame.width / 2, 1920 + 640);
    EXPECT_DOUBLE_EQ(frame.y + frame.height / 2, 500);
}

TEST(PanelPlacement, PutsTheToastBelowThePointer) {
    EXPECT_EQ(toastFrame({0, 0, 1440, 900}, {700, 400}), (Rect{520, 428, 360, 92}));
}

TEST(PanelPlacement, KeepsTheToastInsideAtEveryCorner) {
    const Rect screen{0, 0, 1440, 900};
    EXPECT_EQ(toastFrame(screen, {0, 0}), (Rect{12, 28, 360, 92}));
    EXPECT_EQ(toastFrame(screen, {1439, 0}), (Rect{1068, 28, 360, 92}));
    EXPECT_EQ(toastFrame(screen, {0, 899}), (Rect{12, 796, 360, 92}));
    EXPECT_EQ(toastFrame(screen, {1439, 899}), (Rect{1068, 796, 360, 92}));
}

TEST(PanelPlacement, KeepsTheToastsStartVisibleOnATinyScreen) {
    EXPECT_EQ(toastFrame({0, 0, 300, 80}, {150, 40}), (Rect{12, 12, 360, 92}));
}

TEST(PanelPlacementTest, AFrameStaysOnTheScreenThatShowsMostOfIt) {
    const std::vector<Screen> screens{
        {{0, 0, 1000, 800}, {0, 20, 1000, 780}}, {{1000, 0, 500, 400}, {1000, 0, 480, 400}}};
    EXPECT_EQ(PanelPlacement::visibleFrameAround(screens, Rect{900, 0, 400, 300}), screens[1].visibleFrame);
    EXPECT_EQ(PanelPlacement::visibleFrameAround(screens, Rect{700, 0, 400, 300}), screens[0].visibleFrame);
    EXPECT_EQ(PanelPlacement::visibleFrameAround(screens, Rect{3000, 0, 400, 300}), screens[0].visibleFrame);
    EXPECT_EQ(PanelPlacement::visibleFrameAround({}, Rect{0, 0, 400, 300}), (Rect{0, 0, 1440, 900}));
}

} // namespace
} // namespace quillon
