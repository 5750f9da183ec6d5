#include <quillon/app/core/nudge_toast_controller.h>
#include <quillon/app/platform/fake/fake_panel_host.h>
#include <quillon/app/platform/fake/fake_timers.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

class NudgeToastControllerTest : public testing::Test {
  protected:
    bool isFadingOut() const { return panels.toast->fadedOut > Seconds(0); }

    FakeClock clock;
    FakeTimers timers{clock};
    FakePanelHost panels;
    NudgeToastController toast{panels, timers};
};

TEST_F(NudgeToastControllerTest, ShowsAtThePointerAndHidesByItself) {
    panels.pointerPosition = {960, 500};
    toast.show();
    EXPECT_TRUE(panels.toast->visible);
    EXPECT_FALSE(panels.toast->hasKeyboard);
    EXPECT_EQ(panels.toast->frame, (Rect{780, 528, 360, 92}));
    EXPECT_EQ(panels.toast->fadedIn, Seconds(0.15));
    timers.advance(Seconds(2.79));
    EXPECT_FALSE(isFadingOut());
    timers.advance(Seconds(0.02));
    EXPECT_EQ(panels.toast->fadedOut, Seconds(0.4));
    EXPECT_EQ(timers.running(), 0U);
}

TEST_F(NudgeToastControllerTest, ASecondShowingRestartsTheWait) {
    toast.show();
    timers.advance(Seconds(1));
    toast.show();
    timers.advance(Seconds(2.7));
    EXPECT_FALSE(isFadingOut());
    timers.advance(Seconds(0.2));
    EXPECT_TRUE(isFadingOut());
    EXPECT_EQ(panels.panelsMade, 1);
}

TEST_F(NudgeToastControllerTest, AShowingWhileItFadesOutShowsItAnew) {
    toast.show();
    timers.advance(Seconds(2.9));
    EXPECT_TRUE(isFadingOut());
    toast.show();
    EXPECT_FALSE(isFadingOut());
    EXPECT_EQ(panels.toast->timesShown, 2);
    timers.advance(Seconds(2.9));
    EXPECT_TRUE(isFadingOut());
}

TEST_F(NudgeToastControllerTest, StaysInsideOfThePointersScreen) {
    panels.allScreens = {
        {{0, 0, 1440, 900}, {0, 0, 1440, 900}}, {{1440, 0, 1280, 800}, {1440, 30, 1280, 770}}};
    panels.pointerPosition = {0, 0};
    toast.show();
    EXPECT_EQ(panels.toast->frame, (Rect{12, 28, 360, 92}));
    panels.pointerPosition = {2719, 799};
    toast.show();
    EXPECT_EQ(panels.toast->frame, (Rect{2720 - 372, 800 - 104, 360, 92}));
    panels.allScreens.clear();
    toast.show();
    EXPECT_EQ(panels.toast->frame, (Rect{1440 - 372, 796, 360, 92}));
}

TEST_F(NudgeToastControllerTest, CanBeMadeAheadOfItsFirstShowing) {
    toast.prepare();
    toast.prepare();
    EXPECT_EQ(panels.toast->timesPrepared, 1);
    EXPECT_EQ(panels.toast->frame.width, 360);
    EXPECT_FALSE(panels.toast->visible);
    EXPECT_EQ(timers.running(), 0U);
    toast.show();
    EXPECT_EQ(panels.panelsMade, 1);
    toast.prepare();
    EXPECT_EQ(panels.toast->timesPrepared, 1);
}

TEST_F(NudgeToastControllerTest, ItsEndEndsTheWait) {
    {
        NudgeToastController shortLived(panels, timers);
        shortLived.show();
        EXPECT_EQ(timers.running(), 1U);
    }
    EXPECT_EQ(timers.running(), 0U);
}

} // namespace
} // namespace quillon
