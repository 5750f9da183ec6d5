#include "noted_notices.h"

#include <quillon/app/core/updates/daily_check.h>
#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_timers.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Seconds hour{3600};
constexpr Seconds day = 24 * hour;

FeedAnswer listOf(const std::string& version) {
    return {
        .status = 200,
        .body = "<rss xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel><item>"
                "<sparkle:version>"
                + version + "</sparkle:version></item></channel></rss>"};
}

TEST(WaitForLookTest, IsADayAfterTheLast) {
    const Instant now = FakeClock().now();
    EXPECT_EQ(waitForLook(std::nullopt, now), Seconds(0));
    EXPECT_EQ(waitForLook(now, now), day);
    EXPECT_EQ(waitForLook(after(now, -hour), now), 23 * hour);
    EXPECT_EQ(waitForLook(after(now, -3 * day), now), Seconds(0));
    EXPECT_EQ(waitForLook(after(now, hour), now), Seconds(0)) << "the clock was set";
}

class DailyCheckTest : public testing::Test {
  protected:
    DailyCheck makeCheck(double jitter = 0, const std::string& address = "https://example.org/a") {
        return DailyCheck(
            {.clock = clock, .timers = timers, .memory = memory, .notices = notices},
            {.background = background,
             .timers = timers,
             .ask =
                 [this](const FeedRequest&, std::stop_token) {
                     ++asked;
                     return answer;
                 }},
            {.feedAddress = address, .version = "1.2"}, jitter);
    }
    void pass(Seconds time) {
        for (Seconds passed{0}; passed < time; passed += step) {
            timers.advance(step);
            background.runAll();
        }
    }

    static constexpr Seconds step{60};
    FakeClock clock;
    FakeTimers timers{clock};
    FakeBackground background;
    NotedNotices notices;
    UpdateMemory memory{QString()};
    FeedAnswer answer = listOf("1.2");
    int asked = 0;
};

TEST_F(DailyCheckTest, LooksSomeMinutesAfterTheFirstStart) {
    DailyCheck check = makeCheck();
    check.start();
    pass(DailyCheck::earliest - step);
    EXPECT_EQ(asked, 0);
    pass(step);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(memory.lastCheck(), clock.now());
}

TEST_F(DailyCheckTest, TheFirstLookIsSpreadOverSomeMinutes) {
    DailyCheck check = makeCheck(0.5);
    check.start();
    pass(2 * DailyCheck::earliest - step);
    EXPECT_EQ(asked, 0);
    pass(step);
    EXPECT_EQ(asked, 1);
}

TEST_F(DailyCheckTest, LooksOnceADay) {
    DailyCheck check = makeCheck();
    check.start();
    pass(DailyCheck::earliest);
    pass(day - step);
    EXPECT_EQ(asked, 1);
    pass(step);
    EXPECT_EQ(asked, 2);
    pass(3 * day);
    EXPECT_EQ(asked, 5);
}

TEST_F(DailyCheckTest, ADayIsCountedFromTheLastLookOfAnEarlierRun) {
    memory.setLastCheck(after(clock.now(), -20 * hour));
    DailyCheck check = makeCheck();
    check.start();
    pass(4 * hour - step);
    EXPECT_EQ(asked, 0);
    pass(step);
    EXPECT_EQ(asked, 1);
}

TEST_F(DailyCheckTest, NoticesThatTheComputerSlept) {
    memory.setLastCheck(clock.now());
    DailyCheck check = makeCheck();
    check.start();
    pass(step);
    clock.setNow(after(clock.now(), 30 * hour));
    pass(hour);
    EXPECT_EQ(asked, 1);
}

TEST_F(DailyCheckTest, SaysNothingUnlessThereIsANewerRelease) {
    DailyCheck check = makeCheck();
    check.start();
    for (const FeedAnswer& other :
         {listOf("1.2"), listOf("1.0"), FeedAnswer{404, ""}, FeedAnswer{500, ""}, FeedAnswer{},
          FeedAnswer{200, "?"}}) {
        answer = other;
        pass(day);
    }
    EXPECT_GE(asked, 6);
    EXPECT_THAT(notices.told, IsEmpty());
    EXPECT_THAT(notices.offered, IsEmpty());
}

TEST_F(DailyCheckTest, ShowsANewerRelease) {
    answer = listOf("1.3");
    DailyCheck check = makeCheck();
    check.start();
    pass(DailyCheck::earliest);
    EXPECT_THAT(notices.offered, ElementsAre("1.3"));
    EXPECT_EQ(notices.lastOccasion, Occasion::unasked);
}

TEST_F(DailyCheckTest, DoesNotShowAgainWhatWasPutOff) {
    answer = listOf("1.3");
    memory.setDismissed("1.3");
    DailyCheck check = makeCheck();
    check.start();
    pass(2 * day);
    EXPECT_GE(asked, 2);
    EXPECT_THAT(notices.offered, IsEmpty());
    answer = listOf("1.4");
    pass(day);
    EXPECT_THAT(notices.offered, ElementsAre("1.4"));
}

TEST_F(DailyCheckTest, TriesAgainSomeHoursAfterAFailure) {
    answer = FeedAnswer();
    DailyCheck check = makeCheck();
    check.start();
    pass(DailyCheck::earliest);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(memory.lastCheck(), std::nullopt);
    pass(DailyCheck::retry - step);
    EXPECT_EQ(asked, 1);
    pass(step);
    EXPECT_EQ(asked, 2);
}

TEST_F(DailyCheckTest, WithoutAListItDoesNothing) {
    DailyCheck check = makeCheck(0, "");
    check.start();
    EXPECT_EQ(timers.running(), 0U);
}

} // namespace
} // namespace quillon
