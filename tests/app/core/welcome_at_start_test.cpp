#include "app_model_fixture.h"

#include <quillon/app/core/first_trust.h>
#include <quillon/app/core/welcome_at_start.h>

#include <gmock/gmock.h>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FirstTrustTest : public AppModelTest {
  protected:
    void wait(double patience) {
        trust.wait(Seconds(patience), [this] { ++calls; });
    }
    int callsAfter(double seconds) {
        desktop.timers.advance(Seconds(seconds));
        return calls;
    }

    FirstTrust trust{model, desktop.timers};
    int calls = 0;
};

TEST_F(FirstTrustTest, WithoutAnAnswerItWaitsAsLongAsItsPatience) {
    model.start();
    wait(0.5);
    EXPECT_TRUE(trust.isWaiting());
    EXPECT_EQ(callsAfter(0.4), 0);
    EXPECT_EQ(callsAfter(0.2), 1);
    EXPECT_FALSE(trust.isWaiting());
    desktop.access.setTrusted(true);
    EXPECT_EQ(callsAfter(5), 1) << "once";
}

TEST_F(FirstTrustTest, GoesOnAsSoonAsMenusMayBeRead) {
    model.start();
    wait(0.5);
    desktop.access.setTrusted(true);
    EXPECT_EQ(calls, 0) << "not in the midst of the change";
    EXPECT_EQ(callsAfter(0.01), 1);
    EXPECT_EQ(callsAfter(1), 1);
}

TEST_F(FirstTrustTest, WhereMenusMayBeReadAlreadyNothingIsWaitedFor) {
    startWith(sketch);
    wait(0.5);
    EXPECT_EQ(callsAfter(0), 1);
}

TEST_F(FirstTrustTest, NothingIsCalledOnceItStops) {
    model.start();
    wait(0.5);
    trust.stop();
    EXPECT_FALSE(trust.isWaiting());
    desktop.access.setTrusted(true);
    EXPECT_EQ(callsAfter(5), 0);
}

class WelcomeAtStartTest : public AppModelTest {
  protected:
    /// What was opened so many seconds after the start.
    const std::vector<WindowName>& openedAfter(double seconds) {
        desktop.timers.advance(Seconds(seconds));
        return desktop.windows.opened();
    }
    void begin(bool onboarded) {
        model.setOnboarded(onboarded);
        model.start();
        welcome.begin();
    }

    WelcomeAtStart welcome{model, desktop.timers};
};

TEST_F(WelcomeAtStartTest, AFirstStartWithoutPermissionOpensIt) {
    begin(false);
    EXPECT_TRUE(welcome.isDue());
    EXPECT_THAT(openedAfter(0.6), ElementsAre(WindowName::welcome));
    EXPECT_FALSE(welcome.isDue());
}

TEST_F(WelcomeAtStartTest, AFirstStartWithPermissionOpensItOnceThatIsKnown) {
    begin(false);
    EXPECT_THAT(openedAfter(0.1), IsEmpty()) << "the permission would come into view a moment later";
    desktop.access.setTrusted(true);
    EXPECT_THAT(openedAfter(0.01), ElementsAre(WindowName::welcome));
}

TEST_F(WelcomeAtStartTest, WhoHasCompletedItAndGivenPermissionIsLeftAlone) {
    begin(true);
    EXPECT_THAT(openedAfter(2), IsEmpty());
    desktop.access.setTrusted(true);
    EXPECT_THAT(openedAfter(10), IsEmpty());
}

TEST_F(WelcomeAtStartTest, WhoHasTakenThePermissionBackIsAskedForItAgain) {
    begin(true);
    EXPECT_THAT(openedAfter(3), IsEmpty());
    EXPECT_THAT(openedAfter(2), ElementsAre(WindowName::welcome));
}

TEST_F(WelcomeAtStartTest, GivesWayToWhatTheUserAsksFor) {
    begin(false);
    welcome.giveWay();
    EXPECT_THAT(openedAfter(10), IsEmpty());
}

} // namespace
} // namespace quillon
